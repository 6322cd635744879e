#pragma once

#include "TestDatabase.h"

#include <QString>

// Rows the pricing tests start from, written through the table objects the
// way the registers write them.
namespace PricingData {

int addKilometreRange(Connection &connection, int from, int to);
int addKilogramRange(Connection &connection, int from, int to);
int addGroup(Connection &connection, const QString &name, bool blocked = false);
void addCell(Connection &connection, int group, int kilometreRange, int kilogramRange,
             double amount);
int addTariff(Connection &connection, const QString &name, int kind, double perTonne,
              double perKilometre, double perHour, double perPallet);
int addCity(Connection &connection, const QString &name, const QString &postcode = {});
int addRoute(Connection &connection, int from, int via, int to, int kilometres);

} // namespace PricingData
