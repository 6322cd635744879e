#pragma once

#include "TPozycjaZestawienia.h"

#include <QDate>
#include <QHash>
#include <QString>

#include <functional>
#include <vector>

class Connection;
class Statement;

// The statement of issued invoices as the register's statements menu asks
// for it: the domestic invoices issued in a period for orders the company
// carried itself, or for orders passed on to other carriers.
//
// read() runs the selection and tells how many invoices there are; build()
// then makes one record per invoice: the client's name, the vehicle of an
// order of the invoice that has one (the first order by key), and four sums
// of the invoice's lines: net = RoundTo2(quantity x price) per line, gross
// and VAT from the line's rate (PROCENT a fraction, 0.23 for 23 %) each
// rounded per line, and the net of the stamp-fee lines (RODZAJ_USLUGI 10).
// The records come sorted by the invoice's sequence number.
class IssuedInvoices
{
public:
    static constexpr int StampFee = 10;

    IssuedInvoices(Connection &connection, QDate from, QDate to, bool ownExecutor);

    // "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA ...) OD " with the period.
    QString title() const;

    // The selection statement, bound and ready to run; ownerKey is the
    // company's own contractor (IDWłaściciela).
    void prepare(Statement &statement, int ownerKey) const;

    // Runs the selection; the number of invoices found. Throws DbError.
    int read();
    // One step per invoice with the text of the wait window's label.
    using Step = std::function<void(const QString &label)>;
    // The records of the invoices read. Throws DbError.
    std::vector<TPozycjaZestawienia> build(const Step &step = {});

private:
    struct Line
    {
        double quantity = 0.0;
        double price = 0.0;
        int vat = 0;
        int kind = 0;
    };

    void bindPeriod(Statement &statement) const;
    void readLines();
    void readVehicles();
    const QString &clientName(int key);
    double vatRate(int key);
    void addLines(TPozycjaZestawienia &record);

    Connection &m_connection;
    QDate m_from;
    QDate m_to;
    bool m_ownExecutor;
    std::vector<TPozycjaZestawienia> m_invoices;
    QHash<int, std::vector<Line>> m_lines;
    QHash<int, QString> m_vehicles;
    QHash<int, QString> m_clients;
    QHash<int, double> m_rates;
};
