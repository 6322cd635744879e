#include "CompanyForms.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TDateEdit.h"
#include "TFakturyObj.h"
#include "TfrmFakturowanie.h"
#include "TfrmWybierzZlecenia.h"
#include "TfrmWyborKontrahenta.h"
#include "TframeListView.h"

#include <QDate>

namespace {

// The client with the most orders still to invoice around today.
int clientToInvoice()
{
    const QDate today = QDate::currentDate();
    return demoKey(QStringLiteral("SELECT FIRST 1 IDKONTRAHENTA FROM ZLECENIA_PRZYCH "
                                  "WHERE (IDFAKTURY IS NULL OR IDFAKTURY = 0) "
                                  "AND DATA BETWEEN '%1' AND '%2' "
                                  "GROUP BY IDKONTRAHENTA ORDER BY COUNT(*) DESC")
                       .arg(today.addMonths(-1).toString(Qt::ISODate),
                            today.addMonths(1).toString(Qt::ISODate)));
}

std::unique_ptr<QWidget> selection()
{
    auto form = formOfCompany<TfrmWybierzZlecenia>(nullptr, clientToInvoice(), 0);
    TListViewModel &rows = form->frameListView1->lvMain->items();
    for (int row = 0; row < std::min(rows.rows(), 3); ++row)
        rows.setChecked(row, true);
    return form;
}

std::unique_ptr<QWidget> header()
{
    static TFakturyObj record(demoCompany());
    record.ID_KONTRAHENTA = clientToInvoice();
    record.OPIS_POZYCJI = QStringLiteral("Przewóz towaru wg załącznika");
    auto dialog = formOfCompany<TfrmFakturowanie>(nullptr, record);
    dialog->deDataSprzedazy->setDate(QDate::currentDate().addDays(-2));
    return dialog;
}

} // namespace

void addInvoicingShots(ShotBook &book)
{
    book.add(QStringLiteral("frmWyborKontrahenta"), [](ShotContext &) -> std::unique_ptr<QWidget> {
        return formOfCompany<TfrmWyborKontrahenta>(nullptr, clientToInvoice(), 0);
    });
    book.add(QStringLiteral("frmWybierzZlecenia"), [](ShotContext &) { return selection(); });
    book.add(QStringLiteral("frmFakturowanie"), [](ShotContext &) { return header(); });
}
