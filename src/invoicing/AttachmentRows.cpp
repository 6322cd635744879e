#include "AttachmentRows.h"

#include "Format.h"
#include "PrintoutError.h"
#include "Statement.h"
#include "TFakturyObj.h"
#include "TVzlecenia_przychObj.h"

#include <QHash>

#include <algorithm>

namespace {

QString money(double value)
{
    return Format::number(value, u"##0.00");
}

int shownNumber(const TVzlecenia_przychObj &order)
{
    return order.NUMER < 1 ? order.NR_KARTY : order.NUMER;
}

struct OrderExtras
{
    DateTime unloading;
    QString firstGoods;
};

// What the view does not carry: the unloading date and the first goods of
// each order, for all orders of the invoice in one statement.
QHash<int, OrderExtras> extrasOf(Connection &connection, int invoiceKey)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT z.ID_ZLECENIA_PRZYCH, z.DATA_ROZLADUNKU,"));
    st.add(QStringLiteral("  (SELECT FIRST 1 t.NAZWA FROM TOWARY t"));
    st.add(QStringLiteral("   WHERE t.ID_ZLECENIA = z.ID_ZLECENIA_PRZYCH ORDER BY t.ID_TOWARU)"));
    st.add(QStringLiteral("FROM ZLECENIA_PRZYCH z WHERE z.IDFAKTURY = :aIDFAKTURY"));
    st.bind(QStringLiteral("aIDFAKTURY"), invoiceKey);
    st.exec();
    QHash<int, OrderExtras> extras;
    for (; !st.atEnd(); st.next())
        extras.insert(st.integer(0), {st.dateTime(1), st.string(2)});
    return extras;
}

} // namespace

AttachmentRow AttachmentRow::of(const TVzlecenia_przychObj &order, DateTime unloading,
                                const QString &firstGoods)
{
    AttachmentRow row;
    row.number = QString::number(shownNumber(order));
    row.vehicle = order.POJAZD;
    if (order.KWOTA != 0.0) {
        row.amountValue = order.KWOTA;
        row.quantities = QStringLiteral("---");
        row.rates = QStringLiteral("Umowna");
    } else {
        row.amountValue = order.STAWKA_RAZEM;
        row.quantities = QString::number(order.KM_LADOWNE) + u'/'
            + Format::number(order.KM_PUSTE, u"#,##0.000");
        row.rates = money(order.STAWKA_KMLAD) + u'/' + money(order.STAWKA_KMPUSTY);
        if (order.ILOSC_GODZIN > 0) {
            row.quantities += u'/' + QString::number(order.ILOSC_GODZIN);
            row.rates += u'/' + money(order.STAWKA_GODZINY);
        }
    }
    row.from = order.MIASTOOD;
    row.via = order.MIASTOVIA;
    row.to = order.MIASTODO;
    row.dates = Format::date(order.DATA);
    if (!unloading.isNull())
        row.dates += QStringLiteral("; ") + Format::date(unloading);
    row.goods = firstGoods;
    if (order.DOK_WZ != 0)
        row.deliveryNote = QString::number(order.DOK_WZ);
    row.taxValue = order.OPLATA_SKARBOWA;
    row.totalValue = row.amountValue + row.taxValue;
    row.amount = money(row.amountValue);
    row.tax = money(row.taxValue);
    row.total = money(row.totalValue);
    return row;
}

AttachmentRows AttachmentRows::load(Connection &connection, int invoiceKey)
{
    const TFakturyObj invoice = TFakturyObj(connection).SelectById(invoiceKey);
    if (invoice.ID_FAKTURY == 0)
        throw PrintoutError(QStringLiteral("Nie ma faktury o identyfikatorze %1.").arg(invoiceKey));
    std::vector<TVzlecenia_przychObj> orders = TVzlecenia_przychObj(connection).SelectWhere(
        QStringLiteral("IDFAKTURY"), opEqual, invoiceKey);
    const auto key = [](const TVzlecenia_przychObj &order) {
        return std::pair(QStringLiteral("%1").arg(shownNumber(order), 6), order.POJAZD);
    };
    std::stable_sort(orders.begin(), orders.end(),
                     [&key](const auto &a, const auto &b) { return key(a) < key(b); });

    const QHash<int, OrderExtras> extras = extrasOf(connection, invoiceKey);
    AttachmentRows result;
    result.invoiceNumber = invoice.NUMER_PELNY;
    for (const TVzlecenia_przychObj &order : orders) {
        const OrderExtras extra = extras.value(order.ID_ZLECENIA_PRZYCH);
        result.rows.push_back(AttachmentRow::of(order, extra.unloading, extra.firstGoods));
        result.amount += result.rows.back().amountValue;
        result.tax += result.rows.back().taxValue;
        result.total += result.rows.back().totalValue;
    }
    return result;
}
