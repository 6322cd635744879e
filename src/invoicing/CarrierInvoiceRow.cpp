#include "CarrierInvoiceRow.h"

#include "Statement.h"

#include <cmath>

QString CarrierInvoiceRow::daysLate() const
{
    const double late = std::floor(-days);
    return late >= 1.0 ? QString::number(late, 'f', 0) : QString();
}

QString CarrierInvoiceRow::carrierHeader() const
{
    return shortName + QStringLiteral(" ; ") + city + QStringLiteral("  ") + street;
}

std::vector<CarrierInvoiceRow> CarrierInvoiceRow::readAll(Statement &st)
{
    const bool withPayments = st.columnIndex(QStringLiteral("ZAPLACONA_KWOTA")) >= 0;
    std::vector<CarrierInvoiceRow> rows;
    for (; !st.atEnd(); st.next()) {
        CarrierInvoiceRow row;
        row.orderNumber = st.integer(QStringLiteral("NR_ZLECENIA"));
        row.number = st.string(QStringLiteral("NUMER_PELNY"));
        row.received = st.dateTime(QStringLiteral("DATA_OTRZY"));
        row.issued = st.dateTime(QStringLiteral("DATA_WYSTAWIENIA"));
        row.due = st.dateTime(QStringLiteral("PLATNEDO"));
        row.paymentDate = st.dateTime(QStringLiteral("DATAPLAT"));
        row.amount = st.number(QStringLiteral("BRUTTO"));
        if (withPayments)
            row.paidAmount = st.number(QStringLiteral("ZAPLACONA_KWOTA"));
        row.days = st.number(QStringLiteral("DNI"));
        row.shortName = st.string(QStringLiteral("SKROT"));
        row.street = st.string(QStringLiteral("ULICA"));
        row.city = st.string(QStringLiteral("MIASTO"));
        row.name = st.string(QStringLiteral("NAZWA"));
        rows.push_back(std::move(row));
    }
    return rows;
}
