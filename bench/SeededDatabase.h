#pragma once

#include "Connection.h"
#include "DemoSeeder.h"
#include "Schema.h"

#include <QString>

// The benchmarks' scratch database: made at path, opened on connection and
// filled with the demo company of the given number of orders.
inline void openSeededDatabase(Connection &connection, const QString &path, int orders)
{
    Schema::createDatabase(path);
    connection.open(path);
    DemoSeeder::Options options;
    options.orders = orders;
    DemoSeeder(connection, options).seed();
}
