#pragma once

#include "CarrierInvoiceRow.h"

#include <QDate>
#include <QString>

#include <vector>

class Connection;
class Statement;

// Which carriers' invoices a list holds: the unpaid ones, those paid in a
// period or those issued in a period, of one carrier or of all. An invoice
// is an order with a carrier's amount above 0; NRRAMPY 1 marks it paid.
class CarrierInvoiceList
{
public:
    enum Mode { Unpaid = 1, Paid = 2, Issued = 3 };

    Mode mode = Unpaid;
    int carrier = 0;   // IDPRZEWOZNIK; 0 for every carrier
    QDate from;        // the period of modes 2 and 3, both days included
    QDate to;

    // The title the list prints under the company's name.
    QString title() const;

    // The list's statement, bound and ready to run, ordered by the
    // carrier's full name.
    void prepare(Statement &statement) const;
    // Runs it. Throws DbError.
    std::vector<CarrierInvoiceRow> read(Connection &connection) const;

    // The payment list: every unpaid invoice with what has been paid on it,
    // ordered by payment date.
    static void preparePayments(Statement &statement);
    static std::vector<CarrierInvoiceRow> readPayments(Connection &connection);
    static QString paymentsTitle();

    struct Carrier
    {
        int key = 0;
        QString name;
    };
    // The carriers of the incoming orders, to choose one list by.
    static std::vector<Carrier> carriers(Connection &connection);
};
