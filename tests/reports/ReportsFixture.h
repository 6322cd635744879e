#pragma once

#include "ReportPeriod.h"
#include "SessionFixture.h"

#include <QDate>
#include <QString>

// A small forwarding company: three clients, two carriers and the company
// itself as a carrier, three users, orders of February to April 2026 with
// agreed and per-kilometre revenue, carriers' invoices and two domestic
// VAT invoices of March.
class ReportsFixture : public SessionFixture
{
protected:
    static inline const QString Company = QStringLiteral("Spedycja Żuraw Sp. z o.o.");

    ReportsFixture();

    struct Order
    {
        int number = 0;
        QDate day;
        int client = 0;
        int carrier = 0;
        int user = 0;
        double amount = 0.0;          // KWOTA
        int loadedKm = 0;
        double loadedKmRate = 0.0;
        double cost = 0.0;            // KOSZTRAZEM
        QString carrierInvoice = {};
        double carrierAmount = 0.0;
        QDate carrierIssued = {};
        int carrierDays = 14;
        bool carrierPaid = false;
        double carrierPaidAmount = 0.0;
    };
    int addOrder(const Order &order);

    struct Position
    {
        double quantity = 1.0;
        double price = 0.0;
    };
    int addInvoice(const QString &number, int kind, const QDate &issued, int user, int client,
                   std::initializer_list<Position> positions);

    // The orders and invoices every statement's test reads:
    //   1 ALFA  2026-03-02 anna   TRANS-X  KWOTA 1234,56 (revenue 1 235,00) cost 1 000
    //                             carrier's TX/1 1 000,00 of 03-03, 14 days, paid
    //   2 ALFA  2026-03-05 bartek TRANS-X  KWOTA 0,40: 100 km x 2,345 = 234,50, cost 200
    //   3 BETA  2026-03-10 anna   CARGO-Y  KWOTA 3 000, cost 2 000
    //                             carrier's CY/7 2 100,00 of 03-12, 7 days, 600 paid
    //   4 GAMMA 2026-03-15 bartek ŻURAW    KWOTA 500, cost 600
    //                             carrier's ZW/1 100,00 of 03-25, 14 days, unpaid
    //   5 ALFA  2026-04-01 celina TRANS-X  KWOTA 999 (after March)
    //   6 BETA  2026-02-20 anna   CARGO-Y  KWOTA 800, cost 500 (before March)
    // and the invoices 001/03/2026 (anna, ALFA: 1 x 1 235,00 and 2 x 10,005),
    // 002/03/2026 (bartek, BETA: 1 x 3 000,00), a kind 2 document of March
    // and a domestic invoice of April.
    void seedCompany();

    static ReportPeriod march() { return {QDate(2026, 3, 1), QDate(2026, 3, 31)}; }

    int alfa = 0, beta = 0, gamma = 0;   // clients
    int transX = 0, cargoY = 0, own = 0; // carriers; own is the company itself
    int anna = 0, bartek = 0, celina = 0;
    int gdansk = 0, torun = 0, krakow = 0;
};
