#include "IncomingOrderStatements.h"

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
    if (!st.atEnd())
        order.readCurrentRow(st);
    return order;
}

int insert(Connection &connection, const TZlecenia_przychObj &order)
{
    const QStringList columns = insertedColumns();
    QStringList parameters;
    for (const QString &column : columns)
        parameters << parameter(column);
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO ZLECENIA_PRZYCH (") + ColumnList + u')');
    st.add(QStringLiteral("VALUES (") + parameters.join(u',') + u')');
    st.add(QStringLiteral("RETURNING ID_ZLECENIA_PRZYCH"));
    order.bindColumns(st, columns);
    st.exec();
    return st.integer(0);
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
    order.bindColumns(st, columns);
    st.bind(QStringLiteral("aIDZlecenia"), order.ID_ZLECENIA_PRZYCH);
    st.exec();
}

} // namespace IncomingOrderStatements
