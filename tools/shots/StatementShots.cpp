#include "CompanyForms.h"
#include "Connection.h"
#include "IssuedInvoices.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TfrmPrintObrotyNaUseraFakt.h"
#include "TfrmPrintObrotyNaUseraFaktObca.h"
#include "TfrmPrintObrotyNaUseraZagr.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmWybierzDatyAndUsera1.h"
#include "TfrmWyborKontrachentDaty.h"
#include "TfrmWyborKontrachentDaty1.h"
#include "TfrmWyborWspolnika.h"
#include "TfrmZestawienieKontrahenta.h"
#include "TfrmZestawieniePrzewoznika.h"
#include "TfrmZestawienieRachunkow.h"
#include "TfrmZestawienieRoznicStawek2.h"

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

// Last month and this one: two months of the demo company side by side.
ReportPeriod twoMonths()
{
    const QDate today = QDate::currentDate();
    return {ReportPeriod::monthOf(today.addMonths(-1)).from, ReportPeriod::monthOf(today).to};
}

template <class Statement>
void addStatement(ShotBook &book, const QString &name, bool withChart)
{
    book.add(name, [](ShotContext &) {
        Statement statement(demoCompany(), twoMonths(), 0);
        return firstPage(statement.report());
    });
    if (withChart) {
        book.add(name + QStringLiteral("-wykres"), [](ShotContext &) {
            Statement statement(demoCompany(), twoMonths(), 0);
            return lastPage(statement.report());
        });
    }
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
    book.add(QStringLiteral("frmWyborKontrachentDaty"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmWyborKontrachentDaty>(nullptr, 2);
             });
    book.add(QStringLiteral("frmWyborKontrachentDaty1"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmWyborKontrachentDaty1>(nullptr, 0);
             });
    book.add(QStringLiteral("frmWybierzDatyAndUsera1"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmWybierzDatyAndUsera1>(
                     nullptr, TfrmWybierzDatyAndUsera1::CarrierInvoices, 1);
             });
    addStatement<TfrmZestawienieKontrahenta>(book, QStringLiteral("frmZestawienieKontrahenta"),
                                             true);
    addStatement<TfrmZestawieniePrzewoznika>(book, QStringLiteral("frmZestawieniePrzewoznika"),
                                             false);
    book.add(QStringLiteral("frmZestawienieRoznicStawek2"), [](ShotContext &) {
        TfrmZestawienieRoznicStawek2 statement(demoCompany(), twoMonths());
        return firstPage(statement.report());
    });
    addStatement<TfrmPrintObrotyNaUseraZagr>(book, QStringLiteral("frmPrintObrotyNaUseraZagr"),
                                             true);
    addStatement<TfrmPrintObrotyNaUseraFakt>(book, QStringLiteral("frmPrintObrotyNaUseraFakt"),
                                             false);
    addStatement<TfrmPrintObrotyNaUseraFaktObca>(
        book, QStringLiteral("frmPrintObrotyNaUseraFaktObca"), false);
}
