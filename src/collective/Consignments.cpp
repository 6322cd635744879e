#include "Consignments.h"

#include "DateTime.h"
#include "DbError.h"
#include "Statement.h"
#include "TZlecenia_przychObj.h"
#include "Transaction.h"

namespace Consignments {

namespace {

int column(const Statement &st, const char *name)
{
    const int index = st.columnIndex(QString::fromLatin1(name));
    if (index < 0)
        throw DbError(
            QStringLiteral("Brak kolumny %1 w liście przesyłek.").arg(QLatin1String(name)));
    return index;
}

QString advice(DateTime value)
{
    return value.isNull() ? QString() : value.time().toString(QStringLiteral("HH:mm"));
}

std::vector<Row> rowsOf(Statement &st, bool withCity)
{
    st.exec();
    const int key = column(st, "ID_ZLECENIA_PRZYCH");
    const int typ = column(st, "TYP");
    const int kontrahent = column(st, "KONTRAHENT");
    const int miasto = column(st, "MIASTO");
    const int plan = column(st, "PALETYPLAN");
    const int ilosc = column(st, "PALETYILOSC");
    const int rampa = column(st, "NRRAMPY");
    const int zwroty = column(st, "ZWROTY");
    const int awizo = column(st, "AWIZO");
    const int kierowca = column(st, "KIEROWCA");
    const int pojazd = column(st, "POJAZD");
    const int ladownosc = column(st, "LADOWNOSCPALET");
    const int telefon = column(st, "TELEFON");
    std::vector<Row> rows;
    for (; !st.atEnd(); st.next()) {
        Row row;
        row.key = st.integer(key);
        row.plannedPallets = st.integer(plan);
        row.texts << st.string(typ) << st.string(kontrahent);
        if (withCity)
            row.texts << st.string(miasto);
        row.texts << QString::number(row.plannedPallets) << QString::number(st.integer(ilosc))
                  << QString::number(row.plannedPallets - st.integer(ilosc))
                  << QString::number(st.integer(rampa)) << QString::number(st.integer(zwroty))
                  << advice(st.dateTime(awizo)) << st.string(kierowca) << st.string(pojazd)
                  << QString::number(st.integer(ladownosc)) << st.string(telefon);
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace

std::vector<Column> columns(bool withCity)
{
    std::vector<Column> all{{"Typ", 100}, {"Nazwa klienta", 120}};
    if (withCity)
        all.push_back({"Miasto (city)", 100});
    all.insert(all.end(), {{"Plan palet", 70},
                           {"Ilość palet", 70},
                           {"Różnica palet", 80},
                           {"Rampa nr", 70},
                           {"Zwroty", -1},
                           {"Awizo", 70},
                           {"Przewoźnik", 120},
                           {"Numer pojazdu", 80},
                           {"Ładowność palet", 70},
                           {"Numer telefonu", 100}});
    return all;
}

std::vector<Row> onVehicle(Connection &connection, int collectiveKey)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT * FROM VZLECENIA_PRZYCH WHERE IDZLECENIAZBIOR=:aIDZlecZbior"));
    st.bind(QStringLiteral("aIDZlecZbior"), collectiveKey);
    return rowsOf(st, false);
}

std::vector<Row> unassigned(Connection &connection, const QDate &from, const QDate &to)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT * FROM VZLECENIA_PRZYCH WHERE DATA BETWEEN :aDataOd AND "
                          ":aDataDo AND (IDZLECENIAZBIOR = 0 or IDZLECENIAZBIOR is NULL)"));
    st.bind(QStringLiteral("aDataOd"), DateTime::fromDate(from));
    st.bind(QStringLiteral("aDataDo"), DateTime::fromDate(to));
    return rowsOf(st, true);
}

int plannedPallets(const std::vector<Row> &rows)
{
    int sum = 0;
    for (const Row &row : rows)
        sum += row.plannedPallets;
    return sum;
}

void unlink(Connection &connection, int orderKey)
{
    Statement st(connection);
    st.add(QStringLiteral(
        "UPDATE ZLECENIA_PRZYCH SET IDZLECENIAZBIOR =NULL WHERE ID_ZLECENIA_PRZYCH=:aIDZlecenia"));
    st.bind(QStringLiteral("aIDZlecenia"), orderKey);
    st.exec();
}

bool assign(Transaction &transaction, const std::vector<int> &orderKeys, int collectiveKey)
{
    // A failed update has been shown by its table object; it only has to
    // undo the orders put on the vehicle before it.
    struct Shown
    {
    };
    try {
        TransactionScope::retrying(transaction, [&] {
            const TZlecenia_przychObj orders(transaction.connection());
            for (const int key : orderKeys) {
                TZlecenia_przychObj order = orders.SelectById(key);
                if (order.ID_ZLECENIA_PRZYCH == 0)
                    continue;
                order.IDZLECENIAZBIOR = collectiveKey;
                if (!order.Update())
                    throw Shown{};
            }
        });
    } catch (const Shown &) {
        return false;
    }
    return true;
}

} // namespace Consignments
