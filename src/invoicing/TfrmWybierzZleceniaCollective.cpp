// The invoicing form's way to the collective order of the selected order:
// its head in the collective order editor, its consignments in the list
// of its vehicle.
#include "TfrmWybierzZlecenia.h"

#include "MessageService.h"
#include "Privileges.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TZlecenia_przychObj.h"
#include "TfrmAddEditZleceniaZbiorcze.h"
#include "TfrmListaPrzesylekNaSamochod.h"
#include "TframeListView.h"

#include <QAction>
#include <QBoxLayout>

void TfrmWybierzZlecenia::addCollectiveOrderActions(QBoxLayout *row)
{
    acPopraw = new QAction(QStringLiteral("&Popraw"), this);
    acPopraw->setObjectName(QStringLiteral("acPopraw"));
    acLadunki = new QAction(QStringLiteral("Ładunki"), this);
    acLadunki->setObjectName(QStringLiteral("acLadunki"));
    btnLadunki = TBitBtn::create(acLadunki->text(), QStringLiteral("btnLadunki"),
                                 row->parentWidget());
    row->addSpacing(16);
    row->addWidget(btnLadunki);
    connect(acPopraw, &QAction::triggered, this, &TfrmWybierzZlecenia::acPoprawExecute);
    connect(acLadunki, &QAction::triggered, this, &TfrmWybierzZlecenia::acLadunkiExecute);
    connect(frameListView1->BitBtn4, &TBitBtn::clicked, acPopraw, &QAction::trigger);
    connect(frameListView1->lvMain, &TListView::dblClick, acPopraw, &QAction::trigger);
    connect(btnLadunki, &TBitBtn::clicked, acLadunki, &QAction::trigger);
}

int TfrmWybierzZlecenia::selectedCollectiveOrder()
{
    const TListView &list = *frameListView1->lvMain;
    const int row = list.selectedIndex();
    Connection *database = session().Database;
    if (row < 0 || !database)
        return 0;
    int collective = 0;
    reportFailures(QStringLiteral("Nie można odczytać zlecenia"), [&] {
        collective = TZlecenia_przychObj(*database).SelectById(list.key(row)).IDZLECENIAZBIOR;
    });
    if (collective == 0)
        Messages::inform(QStringLiteral("Uwaga"),
                         QStringLiteral("Zlecenie nie należy do żadnego zlecenia zbiorczego."));
    return collective;
}

void TfrmWybierzZlecenia::acPoprawExecute()
{
    if (!Privileges::require(Privileges::Edit, this))
        return;
    const int collective = selectedCollectiveOrder();
    if (collective == 0)
        return;
    const auto editor = TfrmRODefault::create<TfrmAddEditZleceniaZbiorcze>(
        this, collective, TfrmAddEditZleceniaZbiorcze::Edit);
    if (editor->showModal() == mrOk)
        frameListView1->Refresh();
}

void TfrmWybierzZlecenia::acLadunkiExecute()
{
    const int collective = selectedCollectiveOrder();
    if (collective == 0)
        return;
    TfrmRODefault::create<TfrmListaPrzesylekNaSamochod>(this, collective)->showModal();
}
