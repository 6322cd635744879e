#include "InvoiceOrderBlock.h"

#include "Format.h"
#include "InvoiceRateText.h"
#include "TZlecenia_przychObj.h"

#include <QStringList>

namespace {

const QString Dashes = QStringLiteral(" --- ");

} // namespace

InvoiceOrderBlock InvoiceOrderBlock::of(const std::vector<TZlecenia_przychObj> &orders,
                                        const std::vector<OrderGoodsItem> &goods,
                                        bool perKilometre)
{
    InvoiceOrderBlock block;
    if (orders.empty()) {
        const QString none = QStringLiteral(" brak");
        block.serviceDate = block.goods = block.rate = none;
        return block;
    }
    block.card = block.orderNumber = Dashes;
    if (orders.size() > 1) {
        const QString attached = QStringLiteral(" w/g załącznika do faktury");
        block.serviceDate = block.goods = block.rate = attached;
        block.vehicle = Dashes;
        return block;
    }
    const TZlecenia_przychObj &order = orders.front();
    block.reference = QStringLiteral("Dotyczy zlecenia: ")
        + QStringLiteral("%1").arg(order.NUMER, 8, 10, QLatin1Char('0'));
    block.serviceDate = Format::date(order.DATA);
    QStringList texts;
    for (const OrderGoodsItem &item : goods)
        texts << item.text();
    block.goods = texts.join(QStringLiteral(" ; "));
    block.rate = InvoiceRateText::of(order, perKilometre);
    block.vehicle = order.POJAZD + QStringLiteral(" / ") + order.NACZEPA;
    return block;
}
