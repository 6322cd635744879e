#include "AmountDue.h"

#include "InvoiceLine.h"
#include "Statement.h"

double AmountDue::of(Connection &connection, int invoiceKey)
{
    Statement st(connection);
    st.add(QStringLiteral("select cena_netto ,Ilosc, "));
    st.add(QStringLiteral("      (select procent from stawki_vat v "));
    st.add(QStringLiteral("          where v.ID_STAWKI=fp.ID_VAT) as procent "));
    st.add(QStringLiteral("from FAKTURY_POZYCJE fp "));
    st.add(QStringLiteral("     where ID_FAKTURY=:aID_FAKTURY "));
    st.bind(QStringLiteral("aID_FAKTURY"), invoiceKey);
    st.exec();
    const int price = st.columnIndex(QStringLiteral("CENA_NETTO"));
    const int quantity = st.columnIndex(QStringLiteral("ILOSC"));
    const int percent = st.columnIndex(QStringLiteral("PROCENT"));
    double due = 0.0;
    for (; !st.atEnd(); st.next()) {
        due += InvoiceLine::amounts(st.number(quantity), st.number(price), st.number(percent))
                   .gross;
    }
    return due;
}
