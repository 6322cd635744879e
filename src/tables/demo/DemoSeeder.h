#pragma once

#include <QDate>
#include <QRandomGenerator>
#include <QStringList>

#include "TTaryfyprzewoznikaObj.h"

#include <vector>

class Connection;
class TZlecenia_przychObj;

// Fills an empty database with a small, realistic forwarding company: the
// own company and its configuration, users and privileges, clients and
// carriers, cities with distances, tariffs and price lists, fleet, road
// cards, orders around a given day with goods and places, a few templates,
// invoices and carrier invoices. The same options give the same data.
class DemoSeeder
{
public:
    struct Options
    {
        int orders = 600;
        QDate today = QDate::currentDate();
        quint32 seed = 20261122;
    };

    DemoSeeder(Connection &connection, Options options);

    // Everything in one transaction: all or nothing. Throws DbError, also
    // when the database is not Empty (with the description of what it is).
    void seed();

    // What a database holds before seeding.
    enum class Contents {
        Empty,          // no rows, no key used yet: the demo company can go in
        Data,           // rows in a table
        // No rows, but key generators used: what a seed that was stopped
        // leaves, since its transaction goes back and the generators do not.
        SeedLeftovers,
    };
    static Contents contents(Connection &connection);
    // One Polish sentence saying what the database holds.
    static QString describe(Contents contents);

    // What the database holds, one line per table, for people to read.
    static QStringList summary(Connection &connection);

    // Configuration keys the seeder writes.
    static constexpr int OwnerKey = 1;          // the own company among contractors
    static constexpr int DomesticCurrency = 24; // PLN

private:
    struct PlannedOrder;
    struct OrderWriter;

    void seedDictionaries();
    void seedCompany();
    void seedUsersAndPrivileges();
    void seedContractors();
    void seedCitiesAndDistances();
    void seedPricing();
    void seedFleet();
    void seedOrders();
    void seedTemplates();
    void seedSiblingRegisters();
    void seedCollectiveOrders();

    // A small company's orders fall on every day a month either side of
    // today; a larger one's on working days at about the rate a forwarder
    // of that size takes them, over as many years as that needs, ending a
    // month after today. Road cards follow the same span.
    static constexpr int AroundToday = 31;
    static constexpr int OrdersPerWorkingDay = 80;
    static constexpr int RoadCardDays = 3;
    static bool isWorkingDay(const QDate &day) { return day.dayOfWeek() <= 5; }
    static int workingDaysAround(const QDate &today);
    bool spreadOverYears() const;
    int firstOrderOffset() const;
    int firstRoadCardOffset() const;
    std::vector<int> orderDayOffsets();
    std::size_t roadCardNear(int offset) const;

    std::vector<PlannedOrder> planOrders();
    void planInvoices(std::vector<PlannedOrder> &orders);
    void insertOrder(PlannedOrder &planned, OrderWriter &writer);
    void insertInvoicePositions(const std::vector<PlannedOrder> &orders);

    int distance(int fromCity, int toCity) const;
    const TTaryfyprzewoznikaObj &tariffWithKey(int key);
    int lastKey(const QString &table);
    void exec(const QString &sql);

    Connection &m_connection;
    Options m_options;
    QRandomGenerator m_random;
    std::vector<int> m_cityKeys;       // by catalogue index
    std::vector<int> m_clientKeys;
    std::vector<int> m_carrierKeys;
    std::vector<int> m_driverKeys;
    std::vector<int> m_vehicleKeys;
    std::vector<int> m_cardKeys;
    std::vector<int> m_ownTariffKeys;
    std::vector<int> m_carrierTariffKeys;
    int m_tonneUnit = 0;
    int m_serviceUnit = 0;
    std::vector<TTaryfyprzewoznikaObj> m_tariffs;
};
