#pragma once

#include <QString>

class Connection;

// The rows tests start from, written through the table objects the way the
// forms write them. Arguments with more than one value are named:
//
//     const int own = TestData::addTariff(c, {.name = QStringLiteral("Krajowa"),
//                                             .own = 1, .perLoadedKm = 3.0});
//
// Each add returns the new row's key.
namespace TestData {

// The highest key of a table: the row the test has just inserted, since a
// test is the only workstation on its database.
int lastKey(Connection &connection, const QString &table, const QString &keyColumn);

struct City
{
    QString name;
    QString postcode;
    int country = 0;
};
int addCity(Connection &connection, const City &city);

// A tariff's rates, by what they are applied to.
struct Tariff
{
    QString name;
    int own = 0;                // TARYFAWLASNA: 1 own, 0 a carrier's
    double perTonne = 0.0;      // KWOTA_ZA_KM
    double perLoadedKm = 0.0;   // KWOTA_ZA_KM_LAD
    double perHour = 0.0;
    double perPallet = 0.0;
};
int addTariff(Connection &connection, const Tariff &tariff);

// Short name as given, full name "<short> Sp. z o.o.".
int addContractor(Connection &connection, const QString &shortName);
// Short name the first three letters.
int addUnit(Connection &connection, const QString &name);

struct User
{
    QString login;
    QString firstName;
    QString surname;
};
int addUser(Connection &connection, const User &user);

// One row of KONFIGURACJA: type 'I' or 'B' with the number, 'S' with the
// text; the other value is NULL.
struct Setting
{
    QString name;
    char type = 'I';
    int number = 0;
    QString text;
};
void addSetting(Connection &connection, const Setting &setting);

// A value of the incoming orders' first filter (the register's dispatchers).
int addFilter(Connection &connection, const QString &text);

// Price lists: ranges, groups and the amounts of their cells (group 0 is
// the main price list).
int addKilometreRange(Connection &connection, int from, int to);
int addKilogramRange(Connection &connection, int from, int to);
int addGroup(Connection &connection, const QString &name, bool blocked = false);
struct Cell
{
    int group = 0;
    int row = 0;      // the kilometre range
    int column = 0;   // the kilogram range
    double amount = 0.0;
};
void addCell(Connection &connection, const Cell &cell);

// A remembered distance (via 0: no city in between).
struct Route
{
    int from = 0;
    int via = 0;
    int to = 0;
    int kilometres = 0;
};
int addRoute(Connection &connection, const Route &route);

} // namespace TestData
