#include "CompanyForms.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TfrmAddEditZleceniaZbiorcze.h"
#include "TfrmListaPrzesylekNaSamochod.h"
#include "TfrmWybierzPrzesylki.h"
#include "TframeListView.h"

namespace {

// The demo company's runs by number: 1 an outside carrier's, 4 the own
// fleet's with more pallets planned than its trailer takes.
int run(int number)
{
    return demoKey(QStringLiteral("SELECT ID_ZLECENIA_ZBIOR FROM ZLECENIA_ZBIOR WHERE NUMER = %1")
                       .arg(number));
}

std::unique_ptr<QWidget> selection()
{
    auto form = formOfCompany<TfrmWybierzPrzesylki>(nullptr, run(4));
    TListViewModel &rows = form->frameListView1->lvMain->items();
    for (int row = 0; row < std::min(rows.rows(), 2); ++row)
        rows.setChecked(row, true);
    return form;
}

} // namespace

void addCollectiveShots(ShotBook &book)
{
    book.add(QStringLiteral("frmAddEditZleceniaZbiorcze"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmAddEditZleceniaZbiorcze>(
                     nullptr, run(1), TfrmAddEditZleceniaZbiorcze::Edit);
             });
    book.add(QStringLiteral("frmListaPrzesylekNaSamochod"),
             [](ShotContext &) -> std::unique_ptr<QWidget> {
                 return formOfCompany<TfrmListaPrzesylekNaSamochod>(nullptr, run(4));
             });
    book.add(QStringLiteral("frmWybierzPrzesylki"), [](ShotContext &) { return selection(); });
}
