#include "InvoiceRateText.h"

#include "Format.h"
#include "TZlecenia_przychObj.h"

#include <QStringList>

namespace {

// The parts carry their own trailing blanks where the wording has them;
// parts that would touch get one blank between them.
QString joined(const QStringList &parts)
{
    QString text;
    for (const QString &part : parts) {
        if (!text.isEmpty() && !text.back().isSpace())
            text += u' ';
        text += part;
    }
    return text;
}

} // namespace

QString InvoiceRateText::of(const TZlecenia_przychObj &order, bool perKilometre)
{
    if (order.IDTARYFY == 0)
        return Format::number(order.KWOTA, u"#,##0.00 ; ");

    QStringList rates;
    QStringList quantities;
    if (order.STAWKA_KMPUSTY > 0 && order.KM_PUSTE > 0) {
        rates << Format::number(order.STAWKA_KMPUSTY, u"#,##0.00 PLN/ tonę");
        quantities << Format::number(order.KM_PUSTE, u"#,##0.000") + QStringLiteral(" ton    ");
    }
    if (order.STAWKA_KMLAD > 0 && order.KM_LADOWNE > 0) {
        if (perKilometre) {
            rates << Format::number(order.STAWKA_KMLAD, u"#,##0.00 PLN za każdy kilometr");
            quantities << Format::number(order.KM_LADOWNE, u"#,##0.00 km");
        } else {
            rates << Format::number(order.STAWKA_KMLAD, u"#,##0.00 PLN/ kilometr ładowny");
            quantities << Format::number(order.KM_LADOWNE, u"#,##0.00 km ładownych");
        }
    }
    if (order.STAWKA_GODZINY > 0 && order.ILOSC_GODZIN > 0) {
        rates << Format::number(order.STAWKA_GODZINY, u"#,##0.00 PLN/ godzinę; ");
        quantities << Format::number(order.ILOSC_GODZIN, u"#,##0.00 godzn; ");
    }
    if (rates.isEmpty())
        return QString();
    return joined(rates) + QStringLiteral("\r\n") + joined(quantities);
}
