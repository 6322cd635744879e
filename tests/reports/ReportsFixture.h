#pragma once

#include "PartnersSelection.h"
#include "ReportPeriod.h"
#include "SessionFixture.h"

#include <QDate>
#include <QString>

#include <vector>

// A small forwarding company with Polish and German cities, VAT rates of
// 23 % and 0 % and the company itself as a carrier (its own haulage).
// Two sets of partners: the clients "KLIENT A" and "KLIENT B" and the
// carrier "PRZEWOZ X", for invoiced orders the tests add one by one; and
// the clients ALFA, BETA, GAMMA, the carriers TRANS-X and CARGO-Y and three
// users, for the orders and invoices of February to April 2026 that
// seedCompany() adds for the statements of the statements menu.
class ReportsFixture : public SessionFixture
{
protected:
    static inline const QString Company = QStringLiteral("Spedycja Żuraw Sp. z o.o.");

    ReportsFixture();

    struct Line
    {
        double quantity = 1.0;
        double price = 0.0;
        int vat = 0;    // 0: the fixture's 23 %
        int kind = 4;   // RODZAJ_USLUGI
    };
    struct Invoice
    {
        int sequence = 1;
        QString number = {};
        int client = 0;    // 0: the first client
        QDate issued = QDate(2026, 3, 10);
        QDate sold = QDate(2026, 3, 9);
        int days = 14;
        int kind = 1;      // ID_RODZAJ_DOK
        int user = 0;      // ID_WYSTAWIL
        std::vector<Line> lines = {};
    };
    // Returns the invoice's key.
    int addInvoice(const Invoice &invoice);

    // An order of 2026-03-05 from Poznań, invoiced or not.
    struct Order
    {
        int invoice = 0;
        int number = 1;
        int carrier = 0;   // 0: the company itself
        QString vehicle = {};
        double rate = 0.0;   // STAWKA_RAZEM
        double cost = 0.0;   // KOSZTRAZEM
        bool abroad = false;   // Poznań - Berlin instead of Poznań - Kraków
        int partner = 0;     // FILTR1
        int client = 0;
    };
    int addOrder(const Order &order);

    // An order from Gdańsk to Kraków (via Toruń when its number is even)
    // with what the statements read of it: its dispatcher, revenue and the
    // carrier's invoice.
    struct StatementOrder
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
    int addStatementOrder(const StatementOrder &order);

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
    // The partners of March 2026, all regions, any carrier, none chosen.
    static PartnersSelection partnersOfMarch();

    int own = 0;         // "ŻURAW", the company itself
    int client = 0;      // "KLIENT A"
    int client2 = 0;     // "KLIENT B"
    int carrier = 0;     // "PRZEWOZ X"
    int alfa = 0, beta = 0, gamma = 0;   // clients
    int transX = 0, cargoY = 0;          // carriers
    int anna = 0, bartek = 0, celina = 0;
    int vat0 = 0;
    int poznan = 0;
    int krakow = 0;
    int berlin = 0;
    int gdansk = 0;
    int torun = 0;
};
