#pragma once

#include "PartnersSelection.h"
#include "SessionFixture.h"

#include <QDate>
#include <QString>

#include <vector>

// The company, its own contractor (the carrier of its own haulage) and two
// clients, a carrier, Polish and German cities, VAT rates of 23 % and 0 %,
// and helpers that add invoices with their lines and invoiced orders.
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
        std::vector<Line> lines = {};
    };
    // Returns the invoice's key.
    int addInvoice(const Invoice &invoice);

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

    // The partners of March 2026, all regions, any carrier, none chosen.
    static PartnersSelection march();

    int own = 0;
    int client = 0;      // "KLIENT A"
    int client2 = 0;     // "KLIENT B"
    int carrier = 0;     // "PRZEWOZ X"
    int vat0 = 0;
    int poznan = 0;
    int krakow = 0;
    int berlin = 0;
};
