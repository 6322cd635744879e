#include "CurrencyConversion.h"

#include "Connection.h"
#include "Money.h"
#include "Statement.h"
#include "TNumery_tabel_kursowObj.h"

namespace {

using CurrencyConversion::Rate;

// The latest table dated on or before the date: the last row in date order.
void findTableForDate(Connection &connection, Rate &found)
{
    Statement st(connection);
    st.add(QStringLiteral("Select * from numery_tabel_kursow "
                          "where Z_DNIA<=:aZ_DNIA order by Z_DNIA"));
    st.bind(QStringLiteral("aZ_DNIA"), found.date);
    st.exec();
    found.tableID = -1;
    for (; !st.atEnd(); st.next()) {
        found.tableID = st.integer(QStringLiteral("ID_NUM_TAB"));
        found.date = st.dateTime(QStringLiteral("Z_DNIA"));
        found.tableNumber = st.string(QStringLiteral("NUMER"));
    }
}

void readRate(Connection &connection, int currencyID, Rate &found)
{
    Statement st(connection);
    st.add(QStringLiteral("Select KURS,ILOSC from TABELE_KURSOW "
                          "where ID_NUM_TAB=:aID_NUM_TAB and ID_WALUTY=:aID_WALUTY"));
    st.bind(QStringLiteral("aID_NUM_TAB"), found.tableID);
    st.bind(QStringLiteral("aID_WALUTY"), currencyID);
    st.exec();
    if (!st.atEnd()) {
        found.rate = st.number(QStringLiteral("KURS"));
        found.quantity = st.integer(QStringLiteral("ILOSC"));
    }
}

} // namespace

Rate CurrencyConversion::convert(Connection &connection, int domesticCurrencyID, int tableID,
                                 int currencyID, DateTime date, int nameLength, double amount)
{
    Rate found;
    found.tableID = tableID;
    found.date = date;
    if (currencyID == domesticCurrencyID) {
        found.rate = 1.0;
        found.quantity = 1;
        found.amount = Money::RoundCentsToEven(amount);
        return found;
    }

    if (found.tableID < 1) {
        findTableForDate(connection, found);
    } else {
        const TNumery_tabel_kursowObj table =
            TNumery_tabel_kursowObj(connection).SelectById(found.tableID);
        found.tableNumber = table.NUMER;
    }
    found.tableNumber = found.tableNumber.left(qMax(0, nameLength));

    if (found.tableID >= 1 && currencyID >= 1)
        readRate(connection, currencyID, found);
    if (found.quantity > 0)
        found.amount = Money::RoundCentsToEven(found.rate / found.quantity * amount);
    return found;
}
