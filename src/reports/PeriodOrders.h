#pragma once

#include "DateTime.h"
#include "ReportPeriod.h"

#include <QString>

#include <vector>

class Connection;

// An order of a statement's period as the register lists it (the columns
// of the view VZLECENIA_PRZYCH), with the register's revenue.
struct PeriodOrder
{
    int key = 0;
    int number = 0;
    DateTime date;
    int client = 0;
    QString clientName;
    int carrier = 0;
    QString carrierName;
    int user = 0;
    QString userName;            // OPERATOR: the user's login
    QString route;               // "from - via - to", an empty city left out
    double revenue = 0.0;
    double cost = 0.0;           // KOSZTRAZEM
    QString carrierInvoice;      // NUMER_OBCA_FAK
    double carrierAmount = 0.0;  // KWOTA_OBCA_FAKT

    double profit() const { return revenue - cost; }
    QString numberText() const;  // eight digits, as the register shows it
};

// The orders loaded (DATA) within a period, of one client, carrier or user
// or of all, in the order of their loading day and number.
struct PeriodOrders
{
    enum Party { Anyone, Client, Carrier, User };

    ReportPeriod period;
    Party party = Anyone;
    int key = 0;   // of the party; 0 with Anyone

    // Throws DbError.
    std::vector<PeriodOrder> read(Connection &connection) const;

private:
    std::vector<PeriodOrder> readNow(Connection &connection) const;
};

// "Gdańsk - Toruń - Kraków"; a city left empty is left out.
QString routeText(const QString &from, const QString &via, const QString &to);
