#include "CompanyForms.h"
#include "Connection.h"
#include "IssuedInvoices.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmWyborWspolnika.h"
#include "TfrmZestawienieRachunkow.h"

#include <QComboBox>
#include <QDate>

namespace {

// The domestic invoices of the last two months for orders of other carriers.
std::unique_ptr<QWidget> issuedInvoices()
{
    const QDate today = QDate::currentDate();
    IssuedInvoices invoices(demoCompany(), today.addMonths(-2), today, false);
    invoices.read();
    const std::vector<TPozycjaZestawienia> records = invoices.build();
    TfrmZestawienieRachunkow report(demoCompany());
    report.setTitle(invoices.title());
    report.setRecords(records);
    return firstPage(report.qrZestawienie());
}

// The first partner's orders of the last month, all regions and carriers.
std::unique_ptr<QWidget> partners()
{
    const QDate today = QDate::currentDate();
    PartnersSelection selection;
    selection.from = PartnersSelection::monthBefore(today);
    selection.to = today;
    selection.fromText = selection.from.toString(Qt::ISODate);
    selection.toText = today.toString(Qt::ISODate);
    const PartnersSelection::Partner first = PartnersSelection::partners(demoCompany()).front();
    selection.partner = first.key;
    selection.partnerText = first.text;
    TfrmRepWspolnicy report(demoCompany());
    report.select(selection);
    return firstPage(report.QuickRep1());
}

} // namespace

void addStatementShots(ShotBook &book)
{
    book.add(QStringLiteral("frmWybierzDatyAndKontrahenta"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmWybierzDatyAndKontrahenta>();
             });
    book.add(QStringLiteral("frmZestawienieRachunkow"), [](ShotContext &) {
        return issuedInvoices();
    });
    book.add(QStringLiteral("frmWyborWspolnika"), [](ShotContext &) -> std::unique_ptr<QWidget> {
        auto dialog = formOfCompany<TfrmWyborWspolnika>();
        dialog->cbWspolnik->setCurrentIndex(0);
        return dialog;
    });
    book.add(QStringLiteral("frmRepWspolnicy"), [](ShotContext &) { return partners(); });
}
