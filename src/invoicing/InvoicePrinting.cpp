#include "InvoicePrinting.h"

#include "MessageService.h"
#include "Statement.h"
#include "TZlecenia_przychObj.h"
#include "TfrmRachunekPL.h"
#include "TfrmZalacznik.h"

namespace {

int ordersOnInvoice(Connection &connection, int invoiceKey)
{
    Statement st(connection);
    st.add(QStringLiteral("select count(*) as ilosc from zlecenia_przych where idfaktury=")
           + QString::number(invoiceKey));
    st.exec();
    return st.integer(0);
}

bool askPerKilometre()
{
    return MessageServices::instance().ask(
               QStringLiteral("Napis na fakturze"),
               QStringLiteral("Czy stawka za każdy kilometr (nie za kilometr ładowny)?"),
               MessageService::Icon::None, MessageService::Yes | MessageService::No,
               MessageService::Yes)
        == MessageService::Yes;
}

} // namespace

void InvoicePrinting::printInvoiceOfOrder(Connection &connection, int orderKey)
{
    const TZlecenia_przychObj order = TZlecenia_przychObj(connection).SelectById(orderKey);
    const int invoiceKey = order.IDFAKTURY;
    if (invoiceKey == 0)
        return;
    bool perKilometre = false;
    if (order.STAWKA_KMLAD > 0 && ordersOnInvoice(connection, invoiceKey) <= 1)
        perKilometre = askPerKilometre();
    const MessageService::Button answer = MessageServices::instance().ask(
        QStringLiteral("Wydruk faktury"), QStringLiteral("Czy wyświetlić podgląd wydruku?"),
        MessageService::Icon::Question,
        MessageService::Yes | MessageService::No | MessageService::Cancel, MessageService::Yes);
    if (answer == MessageService::Cancel)
        return;
    showInvoice(connection, invoiceKey, answer == MessageService::Yes, perKilometre);
}

void InvoicePrinting::showInvoice(Connection &connection, int invoiceKey, bool preview,
                                  bool perKilometre)
{
    TfrmRachunekPL invoice(connection, invoiceKey, perKilometre);
    if (!(preview ? invoice.Preview() : invoice.Print()))
        return;
    TfrmZalacznik attachment(connection, invoiceKey);
    if (preview)
        attachment.Preview();
    else
        attachment.Print();
}
