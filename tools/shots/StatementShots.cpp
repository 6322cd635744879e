#include "CompanySession.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TfrmPrintObrotyNaUseraFakt.h"
#include "TfrmPrintObrotyNaUseraFaktObca.h"
#include "TfrmPrintObrotyNaUseraZagr.h"
#include "TfrmWybierzDatyAndUsera1.h"
#include "TfrmWyborKontrachentDaty.h"
#include "TfrmWyborKontrachentDaty1.h"
#include "TfrmZestawienieKontrahenta.h"
#include "TfrmZestawieniePrzewoznika.h"
#include "TfrmZestawienieRoznicStawek2.h"

#include <QDate>

namespace {

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
