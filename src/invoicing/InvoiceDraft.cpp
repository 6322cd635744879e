#include "InvoiceDraft.h"

#include "InvoicingError.h"
#include "Money.h"
#include "Statement.h"
#include "TVzlecenia_przychObj.h"

#include <QStringList>

#include <map>

namespace {

// What the draft needs of one order.
struct OrderFigures
{
    DateTime delivery;
    double agreed = 0.0;
    double amount = 0.0;
    int carrier = 0;
};

// A long list of keys is read in slices: the engine takes at most 1,500
// values in one IN list.
constexpr std::size_t Slice = 1000;

std::map<int, OrderFigures> figuresOf(Connection &connection, const std::vector<int> &keys)
{
    std::map<int, OrderFigures> figures;
    for (std::size_t first = 0; first < keys.size(); first += Slice) {
        QStringList slice;
        for (std::size_t i = first; i < std::min(keys.size(), first + Slice); ++i)
            slice << QString::number(keys[i]);
        Statement st(connection);
        st.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH, DOSTARCZENIE, STAWKA_RAZEM, KWOTA, "
                              "IDPRZEWOZNIK FROM ZLECENIA_PRZYCH"));
        st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH IN (") + slice.join(u',') + u')');
        st.exec();
        for (; !st.atEnd(); st.next())
            figures[st.integer(0)] = {st.dateTime(1), st.number(2), st.number(3), st.integer(4)};
    }
    return figures;
}

} // namespace

InvoiceDraft InvoiceDraft::of(Connection &connection, const std::vector<int> &orderKeys,
                              int ownerKey)
{
    InvoiceDraft draft;
    draft.orderKeys = orderKeys;
    double total = 0.0;
    const std::map<int, OrderFigures> figures = figuresOf(connection, orderKeys);
    for (int key : orderKeys) {
        const auto found = figures.find(key);
        if (found == figures.end())
            throw InvoicingError(QStringLiteral("Zlecenia o identyfikatorze %1 nie ma już w "
                                                "bazie: mogło zostać usunięte na innym "
                                                "stanowisku. Odśwież listę zleceń.")
                                     .arg(key));
        const OrderFigures &order = found->second;
        if (order.delivery >= draft.latestDelivery)
            draft.latestDelivery = order.delivery;
        total += netAmount(order.agreed, order.amount);
        if (order.carrier == ownerKey)
            draft.ownFleet = true;
    }
    draft.netTotal = Money::RoundTo2(total);
    if (orderKeys.size() == 1) {
        const TVzlecenia_przychObj route
            = TVzlecenia_przychObj(connection).SelectById(orderKeys[0]);
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
