#include "InvoiceDraft.h"

#include "InvoicingError.h"
#include "Money.h"
#include "TVzlecenia_przychObj.h"
#include "TZlecenia_przychObj.h"

InvoiceDraft InvoiceDraft::of(Connection &connection, const std::vector<int> &orderKeys,
                              int ownerKey)
{
    InvoiceDraft draft;
    draft.orderKeys = orderKeys;
    double total = 0.0;
    const TZlecenia_przychObj reader(connection);
    for (int key : orderKeys) {
        const TZlecenia_przychObj order = reader.SelectById(key);
        if (order.ID_ZLECENIA_PRZYCH == 0)
            throw InvoicingError(QStringLiteral("Zlecenia o identyfikatorze %1 nie ma już w "
                                                "bazie: mogło zostać usunięte na innym "
                                                "stanowisku. Odśwież listę zleceń.")
                                     .arg(key));
        if (order.DOSTARCZENIE >= draft.latestDelivery)
            draft.latestDelivery = order.DOSTARCZENIE;
        total += netAmount(order.STAWKA_RAZEM, order.KWOTA);
        if (order.IDPRZEWOZNIK == ownerKey)
            draft.ownFleet = true;
    }
    draft.netTotal = Money::RoundTo2(total);
    if (orderKeys.size() == 1) {
        const TVzlecenia_przychObj route = TVzlecenia_przychObj(connection).SelectById(orderKeys[0]);
        draft.serviceName
            = serviceNameOf(1, route.MIASTOOD, route.MIASTOVIA, route.MIASTODO);
    } else {
        draft.serviceName = serviceNameOf(int(orderKeys.size()), {}, {}, {});
    }
    return draft;
}

double InvoiceDraft::netAmount(double stawkaRazem, double kwota)
{
    return stawkaRazem > 0 ? stawkaRazem : kwota;
}

QString InvoiceDraft::serviceNameOf(int orderCount, const QString &from, const QString &via,
                                  const QString &to)
{
    if (orderCount != 1)
        return QStringLiteral("Przewóz towaru wg załącznika");
    QString name = QStringLiteral("Usługa haulixowa na trasie:") + from + QLatin1Char('-');
    if (!via.trimmed().isEmpty())
        name += via + QLatin1Char('-');
    return name + to;
}
