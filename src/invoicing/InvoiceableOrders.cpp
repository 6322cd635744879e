#include "InvoiceableOrders.h"

#include "DateTime.h"
#include "DbError.h"
#include "Format.h"
#include "Statement.h"

namespace InvoiceableOrders {

namespace {

QString zeroPadded(int number, int width)
{
    return QString::number(number).rightJustified(width, u'0');
}

int column(const Statement &st, const char *name)
{
    const int index = st.columnIndex(QString::fromLatin1(name));
    if (index < 0)
        throw DbError(
            QStringLiteral("Brak kolumny %1 w liście zleceń.").arg(QLatin1String(name)));
    return index;
}

} // namespace

const std::vector<Column> &columns()
{
    static const std::vector<Column> all{
        {"Numer", 120},      {"Zleceniodawca", 150}, {"Przewoźnik", 140}, {"Data załad", 80},
        {"Typ", 40},         {"Trasa", 120},         {"Nr.Karty", 70},    {"Nr.Listu", 70},
    };
    return all;
}

std::vector<Row> read(Connection &connection, const QDate &from, const QDate &to, int client)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT * FROM VZLECENIA_PRZYCH WHERE DATA BETWEEN :aDataOD AND "
                          ":aDataDo AND ((idfaktury is null) or idfaktury=0)"));
    if (client > 0) {
        st.add(QStringLiteral(" AND IDKONTRAHENT=:akon"));
        st.bind(QStringLiteral("akon"), client);
    }
    st.bind(QStringLiteral("aDataOD"), DateTime::fromDate(from));
    st.bind(QStringLiteral("aDataDo"), DateTime::fromDate(to));
    st.exec();
    const int key = column(st, "ID_ZLECENIA_PRZYCH");
    const int numer = column(st, "NUMER");
    const int kontrahent = column(st, "KONTRAHENT");
    const int przewoznik = column(st, "PRZEWOZNIK");
    const int data = column(st, "DATA");
    const int typ = column(st, "TYP");
    const int miastoOd = column(st, "MIASTOOD");
    const int miastoVia = column(st, "MIASTOVIA");
    const int miastoDo = column(st, "MIASTODO");
    const int nrKarty = column(st, "NR_KARTY");
    const int nrListu = column(st, "NR_LISTU");
    std::vector<Row> rows;
    for (; !st.atEnd(); st.next()) {
        Row row;
        row.key = st.integer(key);
        row.texts.reserve(int(columns().size()));
        row.texts << zeroPadded(st.integer(numer), 8) << st.string(kontrahent)
                  << st.string(przewoznik) << Format::date(st.dateTime(data))
                  << st.string(typ)
                  << st.string(miastoOd) + u'-' + st.string(miastoVia) + u'-'
                         + st.string(miastoDo)
                  << zeroPadded(st.integer(nrKarty), 5) << zeroPadded(st.integer(nrListu), 6);
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace InvoiceableOrders
