#include "OrderTemplates.h"

#include "Statement.h"
#include "TTowaryObj.h"
#include "TZlecenia_przychObj.h"
#include "Transaction.h"

namespace OrderTemplates {

namespace {

TZlecenia_przychObj orderFromTemplate(const TZlecenia_przychObj &pattern, const QDate &day)
{
    TZlecenia_przychObj order(pattern.connection());
    order.DATA = DateTime::fromDate(day);
    order.TYP = pattern.TYP;
    order.IDKONTRAHENTA = pattern.IDKONTRAHENTA;
    order.NRRAMPY = pattern.NRRAMPY;
    order.ZWROTY = pattern.ZWROTY;
    order.DOSTARCZENIE = pattern.DOSTARCZENIE;
    order.IDPRZEWOZNIK = pattern.IDPRZEWOZNIK;
    order.TELEFON = pattern.TELEFON;
    order.IDFAKTUROBIORCY = pattern.IDFAKTUROBIORCY;
    order.IDMIASTO_OD = pattern.IDMIASTO_OD;
    order.IDMIASTO_DO = pattern.IDMIASTO_DO;
    order.IDMIASTO_VIA = pattern.IDMIASTO_VIA;
    order.IDMIASTO = pattern.IDMIASTO;
    order.ODLEGLOSC = pattern.ODLEGLOSC;
    order.KWOTA = pattern.KWOTA;
    order.KM_LADOWNE = pattern.KM_LADOWNE;
    order.KM_PUSTE = pattern.KM_PUSTE;
    order.ILOSC_GODZIN = pattern.ILOSC_GODZIN;
    order.IDTARYFY = pattern.IDTARYFY;
    order.IDMIASTAZALADUNKU = pattern.IDMIASTAZALADUNKU;
    order.IDTARYFYKOSZT = pattern.IDTARYFYKOSZT;
    order.KOSZTKWOTA = pattern.KOSZTKWOTA;
    order.PALETYILOSC = pattern.PALETYPLAN;
    order.PALETYPLAN = pattern.PALETYPLAN;
    // A template without an advice date gives an order without one, not
    // the day after the zero date.
    if (!pattern.AWIZO.isNull())
        order.AWIZO = DateTime(pattern.AWIZO.days() + 1.0);
    order.DATA_ROZLADUNKU = DateTime::now();
    return order;
}

bool copyGoods(Connection &connection, int templateKey, int orderKey)
{
    const std::vector<TTowaryObj> goods = TTowaryObj(connection).SelectWhere(
        QStringLiteral("ID_ZLECENIA"), opEqual, templateKey);
    for (TTowaryObj item : goods) {
        item.ID_ZLECENIA = orderKey;
        if (!item.Insert())
            return false;
    }
    return true;
}

} // namespace

bool ordersOnDay(Connection &connection, const QDate &day)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT COUNT(*) AS ILOSC FROM ZLECENIA_PRZYCH"));
    st.add(QStringLiteral("WHERE DATA >= :aOd AND DATA < :aDo"));
    st.bind(QStringLiteral("aOd"), DateTime::fromDate(day));
    st.bind(QStringLiteral("aDo"), DateTime::fromDate(day.addDays(1)));
    st.exec();
    return st.integer(0) > 0;
}

int insertForDay(Connection &connection, Transaction &transaction, const QDate &day)
{
    TransactionScope scope(transaction);
    const std::vector<TZlecenia_przychObj> templates = TZlecenia_przychObj(connection).SelectClause(
        QStringLiteral("WHERE DATA IS NULL AND PALETYPLAN<>0"));
    int inserted = 0;
    for (const TZlecenia_przychObj &pattern : templates) {
        TZlecenia_przychObj order = orderFromTemplate(pattern, day);
        if (!order.Insert()
            || !copyGoods(connection, pattern.ID_ZLECENIA_PRZYCH, order.ID_ZLECENIA_PRZYCH))
            return 0;
        ++inserted;
    }
    Statement used(connection);
    used.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET PALETYPLAN=0 WHERE DATA IS NULL"));
    used.exec();
    scope.commit();
    return inserted;
}

} // namespace OrderTemplates
