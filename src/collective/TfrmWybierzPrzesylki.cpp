#include "TfrmWybierzPrzesylki.h"

#include "ConsignmentColumns.h"
#include "DateRangeBar.h"
#include "Consignments.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TframeListView.h"

#include <QBoxLayout>
#include <QLabel>

TfrmWybierzPrzesylki::TfrmWybierzPrzesylki(QWidget *owner, int collectiveKey)
    : TfrmRODefault(owner), m_collectiveKey(collectiveKey)
{
    setObjectName(QStringLiteral("frmWybierzPrzesylki"));
    setWindowTitle(QStringLiteral("Wybierz przesyłki na pojeździe"));
    lblHeader->setText(QStringLiteral("Wybierz przesyłki"));
    lblHeaderDescription->setText(QStringLiteral("Wybierz przesyłki na pojeździe."));
    btnOk->setModalResult(0);
    setSizeGripEnabled(true);

    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildRange(pnlClient));
    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    ConsignmentColumns::add(*frameListView1, true);
    frameListView1->lvMain->items().setCheckBoxes(true);
    // Orders are chosen here, not entered or removed.
    for (TBitBtn *unused : {frameListView1->BitBtn5, frameListView1->BitBtn4,
                            frameListView1->BitBtn6})
        unused->hide();
    layout->addWidget(frameListView1, 1);

    connect(btnOdswiez, &QPushButton::clicked, frameListView1, &TframeListView::Refresh);
    connect(frameListView1->BitBtn7, &QPushButton::clicked, frameListView1,
            &TframeListView::Refresh);
    connect(btnOk, &QPushButton::clicked, this, &TfrmWybierzPrzesylki::btnOkClick);
    resize(1060, 520);
}

QWidget *TfrmWybierzPrzesylki::buildRange(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(QStringLiteral("pnlZakres"));
    const DateRangeBar bar = DateRangeBar::build(
        panel, QStringLiteral("Wyświetl wysyłki w zakresie od:"), QStringLiteral("dp:"));
    deOd = bar.from;
    deDo = bar.to;
    btnOdswiez = bar.refresh;
    return panel;
}

void TfrmWybierzPrzesylki::FormCreate()
{
    setROCloseOnESC(true);
    const QDate today = QDate::currentDate();
    deOd->setDate(today.addDays(-RangeDays));
    deDo->setDate(today.addDays(RangeDays));
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    LoadLVData();
}

void TfrmWybierzPrzesylki::LoadLVData()
{
    TListView &list = *frameListView1->lvMain;
    list.beginUpdate();
    list.clear();
    if (Connection *database = session().Database) {
        reportFailures(QStringLiteral("Nie można odczytać listy przesyłek"), [&] {
            for (const Consignments::Row &row :
                 Consignments::unassigned(*database, deOd->date(), deDo->date()))
                list.items().addRow(row.texts, row.key);
        });
    }
    list.endUpdate();
}

void TfrmWybierzPrzesylki::btnOkClick()
{
    const std::vector<int> keys = frameListView1->lvMain->items().checkedKeys();
    bool assigned = false;
    reportFailures(QStringLiteral("Nie dodano przesyłek do pojazdu"), [&] {
        assigned = Consignments::assign(session().transaction(), keys, m_collectiveKey);
    });
    if (assigned)
        done(mrOk);
}
