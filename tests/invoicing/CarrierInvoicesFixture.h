#pragma once

#include "SessionFixture.h"

#include <QDate>
#include <QString>

// Two carriers with invoices of their own, the company's name, and the
// session on the test's database. Dates of invoices are given as days.
class CarrierInvoicesFixture : public SessionFixture
{
protected:
    static constexpr int Alfa = 1;   // "ALFA TRANS", Gdańsk
    static constexpr int Beta = 2;   // "BETA CARGO", Poznań
    static inline const QString Company = QStringLiteral("Spedycja Żuraw Sp. z o.o.");

    CarrierInvoicesFixture();

    struct Invoice
    {
        int carrier = Alfa;
        int orderNumber = 1;
        QString number = {};
        double amount = 0.0;       // KWOTA_FAKT_PRZEW
        QDate issued = {};         // null: no date
        int days = 14;             // DNI_FAKT
        QDate paymentDate = {};
        bool paid = false;         // NRRAMPY 1, else 0
        double paidAmount = 0.0;
    };
    // An order holding the carrier's invoice; returns the order's key.
    int addInvoice(const Invoice &invoice);

    static QDate today() { return QDate::currentDate(); }
};
