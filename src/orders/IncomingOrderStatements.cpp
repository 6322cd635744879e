#include "IncomingOrderStatements.h"

#include "DbError.h"
#include "Statement.h"

namespace IncomingOrderStatements {

namespace {

const QString ColumnList = QStringLiteral(
    "DATA,TYP,IDMIASTO,IDMIASTO_OD,IDMIASTO_VIA,IDMIASTO_DO,PALETYILOSC,PALETYPLAN, NRRAMPY,"
    "ZWROTY,AWIZO,DOSTARCZENIE,IDKONTRAHENTA,IDPRZEWOZNIK,TELEFON,RABAT,IDUSER, ODLEGLOSC,"
    "KWOTA,KOSZTKWOTA,KM_LADOWNE,KM_PUSTE,ILOSC_GODZIN,IDTARYFY,IDTARYFYkoszt,oplata_skarbowa,"
    "pojazd,naczepa,dok_wz,numer,stawka_KMLAD,stawka_KMPUSTY,stawka_GODZINY,stawka_razem,"
    "NR_KARTY,NR_LISTU,DODATKOWY_OPIS,NUMER_OBCY, stawka_palety,IDKIEROWCY,KIEROWCA,"
    "KOSZTRAZEM,filtr1, Filtr2");

const QString IssuingUser = QStringLiteral("IDUSER");

QString parameter(const QString &column)
{
    return QStringLiteral(":a") + column;
}

const Column<TZlecenia_przychObj> &columnNamed(const QString &name)
{
    for (const auto &column : TZlecenia_przychObj::description().columns) {
        if (column.name.compare(name, Qt::CaseInsensitive) == 0)
            return column;
    }
    throw DbError(QStringLiteral("Brak kolumny %1 w tabeli ZLECENIA_PRZYCH").arg(name));
}

void bindColumns(Statement &st, const TZlecenia_przychObj &order, const QStringList &columns)
{
    for (const QString &name : columns) {
        std::visit([&](auto member) { st.bind(QStringLiteral("a") + name, order.*member); },
                   columnNamed(name).field);
    }
}

} // namespace

QStringList insertedColumns()
{
    QStringList columns = ColumnList.split(u',');
    for (QString &column : columns)
        column = column.trimmed();
    return columns;
}

TZlecenia_przychObj load(Connection &connection, int orderKey)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT * FROM ZLECENIA_PRZYCH WHERE ID_ZLECENIA_przych=:aIDZlecenia"));
    st.bind(QStringLiteral("aIDZlecenia"), orderKey);
    st.exec();
    TZlecenia_przychObj order(connection);
    if (st.atEnd())
        return order;
    const auto &d = TZlecenia_przychObj::description();
    order.*(d.keyField) = st.integer(d.info.key);
    for (const auto &column : d.columns) {
        std::visit(
            [&](auto member) {
                using Value = std::remove_reference_t<decltype(order.*member)>;
                if constexpr (std::is_same_v<Value, int>)
                    order.*member = st.integer(column.name);
                else if constexpr (std::is_same_v<Value, double>)
                    order.*member = st.number(column.name);
                else if constexpr (std::is_same_v<Value, DateTime>)
                    order.*member = st.dateTime(column.name);
                else
                    order.*member = st.string(column.name);
            },
            column.field);
    }
    return order;
}

void insert(Connection &connection, const TZlecenia_przychObj &order)
{
    const QStringList columns = insertedColumns();
    QStringList parameters;
    for (const QString &column : columns)
        parameters << parameter(column);
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (") + ColumnList + u')');
    st.add(QStringLiteral("VALUES (") + parameters.join(u',') + u')');
    bindColumns(st, order, columns);
    st.exec();
}

void update(Connection &connection, const TZlecenia_przychObj &order)
{
    QStringList columns = insertedColumns();
    columns.removeAll(IssuingUser);
    QStringList assignments;
    for (const QString &column : columns)
        assignments << column + u'=' + parameter(column);
    Statement st(connection);
    st.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET ") + assignments.join(QStringLiteral(", ")));
    st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH=:aIDZlecenia"));
    bindColumns(st, order, columns);
    st.bind(QStringLiteral("aIDZlecenia"), order.ID_ZLECENIA_PRZYCH);
    st.exec();
}

} // namespace IncomingOrderStatements
