#include "CarrierInvoice.h"
#include "CarrierInvoiceList.h"
#include "CompanyForm.h"
#include "Connection.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TFrmNiezaplaconeList.h"
#include "TFrmNiezaplaconePrzewoz.h"
#include "TNumberEdit.h"
#include "TRadioGroup.h"
#include "TfrmFaktPrzew.h"
#include "TfrmKartaDrogowa.h"
#include "TfrmWydrukiPrzewoz.h"

#include <QDate>

namespace {

std::unique_ptr<QWidget> roadCardChoice()
{
    auto choice = formOfCompany<TfrmKartaDrogowa>();
    choice->rbKarta->setItemIndex(1);
    return choice;
}

// An overdue invoice partly paid, its gross amount worked out.
std::unique_ptr<QWidget> carrierInvoice()
{
    const int order = demoKey(QStringLiteral(
        "SELECT FIRST 1 ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH WHERE KWOTA_FAKT_PRZEW > 0"
        " AND NRRAMPY <> 1 AND ZAPLACONA_KWOTA > 0 ORDER BY ID_ZLECENIA_PRZYCH"));
    auto dialog = formOfCompany<TfrmFaktPrzew>(
        nullptr, order, CarrierInvoice::load(demoCompany(), order).value_or(CarrierInvoice()));
    Q_EMIT dialog->CEKWOTA->editingFinished();
    return dialog;
}

CarrierInvoiceList period(CarrierInvoiceList::Mode mode)
{
    const QDate today = QDate::currentDate();
    CarrierInvoiceList list;
    list.mode = mode;
    list.from = today.addMonths(-1);
    list.to = today;
    return list;
}

std::unique_ptr<QWidget> carrierList(CarrierInvoiceList::Mode mode)
{
    TFrmNiezaplaconePrzewoz report(demoCompany(), period(mode));
    return firstPage(report.qrNiezaplacone());
}

} // namespace

void addCarrierShots(ShotBook &book)
{
    book.add(QStringLiteral("frmKartaDrogowa"), [](ShotContext &) { return roadCardChoice(); });
    book.add(QStringLiteral("frmFaktPrzew"), [](ShotContext &) { return carrierInvoice(); });
    book.add(QStringLiteral("frmWydrukiPrzewoz"), [](ShotContext &) -> std::unique_ptr<QWidget> {
        return formOfCompany<TfrmWydrukiPrzewoz>(nullptr, 0, CarrierInvoiceList::Paid);
    });
    book.add(QStringLiteral("frmWydrukiPrzewoz-niezaplacone"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmWydrukiPrzewoz>(nullptr, 0, CarrierInvoiceList::Unpaid);
             });
    book.add(QStringLiteral("frmNiezaplaconePrzewoz"),
             [](ShotContext &) { return carrierList(CarrierInvoiceList::Unpaid); });
    book.add(QStringLiteral("frmNiezaplaconePrzewoz-zaplacone"),
             [](ShotContext &) { return carrierList(CarrierInvoiceList::Paid); });
    book.add(QStringLiteral("frmNiezaplaconePrzewoz-wystawione"),
             [](ShotContext &) { return carrierList(CarrierInvoiceList::Issued); });
    book.add(QStringLiteral("frmNiezaplaconeList"), [](ShotContext &) {
        TFrmNiezaplaconeList report(demoCompany());
        return firstPage(report.qrNiezaplaconeList());
    });
}
