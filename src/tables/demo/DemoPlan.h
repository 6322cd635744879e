#pragma once

#include "BulkInsert.h"
#include "DemoSeeder.h"
#include "TMiejsca_zlecObj.h"
#include "TTowaryObj.h"
#include "TZlecenia_przychObj.h"

#include <vector>

// One order as the seeder plans it before writing it.
struct DemoSeeder::PlannedOrder
{
    explicit PlannedOrder(Connection &connection) : order(connection) {}

    TZlecenia_przychObj order;
    int client = 0;   // index into the catalogue's clients
    int fromCity = 0; // indices into the catalogue's cities
    int toCity = 0;
    std::vector<int> goods;   // indices into the catalogue's goods
    int key = 0;
};

// Prepared once, run for every order: the demo load is tens of thousands
// of orders.
struct DemoSeeder::OrderWriter
{
    explicit OrderWriter(Connection &connection)
        : orders(connection), goods(connection), places(connection), lastOrderKey(connection)
    {
        lastOrderKey.add(QStringLiteral("SELECT GEN_ID(GEN_ZLECENIA_PRZYCH, 0) FROM RDB$DATABASE"));
    }

    BulkInsert<TZlecenia_przychObj> orders;
    BulkInsert<TTowaryObj> goods;
    BulkInsert<TMiejsca_zlecObj> places;
    Statement lastOrderKey;
};
