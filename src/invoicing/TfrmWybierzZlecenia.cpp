#include "TfrmWybierzZlecenia.h"

#include "DateRangeBar.h"
#include "InvoiceableOrders.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TframeListView.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace {

const QString NoInvoice = QStringLiteral("-----------");

} // namespace

TfrmWybierzZlecenia::TfrmWybierzZlecenia(QWidget *owner, int clientKey, int orderKey)
    : TfrmRODefault(owner), m_clientKey(clientKey), m_orderKey(orderKey)
{
    setObjectName(QStringLiteral("frmWybierzZlecenia"));
    setWindowTitle(QStringLiteral("Fakturowanie zleceń"));
    setSizeGripEnabled(true);
    lblHeader->setText(QStringLiteral("Fakturowanie zleceń"));
    lblHeaderDescription->setText(QStringLiteral("Wybierz zlecenia do zafakturowania"));
    btnOk->setText(QStringLiteral("&Zafakturuj"));
    btnOk->setModalResult(0);
    btnCancel->setText(QStringLiteral("Po&wrót"));

    auto *client = new QVBoxLayout(pnlClient);
    client->setContentsMargins(0, 0, 0, 0);
    client->setSpacing(0);
    auto *pnlTop = new QWidget(pnlClient);
    pnlTop->setObjectName(QStringLiteral("pnlTop"));
    buildTop(pnlTop);
    client->addWidget(pnlTop);

    auto *middle = new QHBoxLayout;
    client->addLayout(middle, 1);
    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    TListView *list = frameListView1->lvMain;
    for (const InvoiceableOrders::Column &column : InvoiceableOrders::columns())
        list->addColumn(QString::fromUtf8(column.caption), column.width);
    list->items().setCheckBoxes(true);
    list->setGridLines(true);
    frameListView1->dateColumns() << QStringLiteral("Data załad");
    // Orders are neither added nor removed here; "&Popraw" corrects their
    // collective order.
    for (TBitBtn *unused : {frameListView1->BitBtn5, frameListView1->BitBtn6})
        unused->hide();
    middle->addWidget(frameListView1, 1);
    middle->addWidget(buildSide(pnlClient));

    auto *pnlChecks = new QWidget(pnlClient);
    pnlChecks->setObjectName(QStringLiteral("pnlZaznacz"));
    buildChecks(pnlChecks);
    client->addWidget(pnlChecks);

    connect(btnOdswiez, &QPushButton::clicked, frameListView1, &TframeListView::Refresh);
    connect(frameListView1->BitBtn7, &QPushButton::clicked, frameListView1,
            &TframeListView::Refresh);
    connect(btnOk, &QPushButton::clicked, this, &TfrmWybierzZlecenia::btnZafakturujClick);
    connect(btnDrukuj, &QPushButton::clicked, this, [this] { btnDrukujClick(false); });
    connect(btnPodglad, &QPushButton::clicked, this, [this] { btnDrukujClick(true); });
    connect(btnEksportKsef, &QPushButton::clicked, this, &TfrmWybierzZlecenia::btnEksportKsefClick);
    connect(btnUsun, &QPushButton::clicked, this, &TfrmWybierzZlecenia::btnUsunClick);
    resize(960, 620);
}

void TfrmWybierzZlecenia::buildTop(QWidget *parent)
{
    const DateRangeBar bar
        = DateRangeBar::build(parent, QStringLiteral("od:"), QStringLiteral("do:"));
    deOd = bar.from;
    deDo = bar.to;
    btnOdswiez = bar.refresh;
}

void TfrmWybierzZlecenia::buildChecks(QWidget *parent)
{
    btnZaznaczWszystko = TBitBtn::create(QStringLiteral("Zaznacz wszystko"),
                                         QStringLiteral("btnZaznaczWszystko"), parent);
    btnOdznaczWszystko = TBitBtn::create(QStringLiteral("Odznacz wszystko"),
                                         QStringLiteral("btnOdznaczWszystko"), parent);
    btnOdwrocZaznaczenie = TBitBtn::create(QStringLiteral("Odwróć zaznaczenie"),
                                           QStringLiteral("btnOdwrocZaznaczenie"), parent);
    auto *layout = new QHBoxLayout(parent);
    layout->setContentsMargins(8, 4, 8, 4);
    using Change = TListViewModel::CheckChange;
    for (const auto &[button, change] :
         {std::pair{btnZaznaczWszystko, Change::CheckAll}, {btnOdznaczWszystko, Change::UncheckAll},
          {btnOdwrocZaznaczenie, Change::Invert}}) {
        layout->addWidget(button);
        connect(button, &QPushButton::clicked, this,
                [this, change] { frameListView1->lvMain->items().changeChecks(change); });
    }
    addCollectiveOrderActions(layout);
    layout->addStretch(1);
}

QWidget *TfrmWybierzZlecenia::buildSide(QWidget *parent)
{
    auto *side = new QWidget(parent);
    side->setObjectName(QStringLiteral("pnlPrawy"));
    auto *layout = new QVBoxLayout(side);
    layout->setContentsMargins(6, 4, 8, 4);

    gbMiesiac = new QGroupBox(QStringLiteral("Miesiąc Rozliczeniowy"), side);
    gbMiesiac->setObjectName(QStringLiteral("gbMiesiac"));
    RbWystawienie = new QRadioButton(QStringLiteral("Data Wystawienia"), gbMiesiac);
    RbWystawienie->setObjectName(QStringLiteral("RbWystawienie"));
    RbWystawienie->setChecked(true);
    RbSp = new QRadioButton(QStringLiteral("Data Sprzedazy"), gbMiesiac);
    RbSp->setObjectName(QStringLiteral("RbSp"));
    auto *month = new QVBoxLayout(gbMiesiac);
    month->addWidget(RbWystawienie);
    month->addWidget(RbSp);
    layout->addWidget(gbMiesiac);

    cbZalacznik = new QCheckBox(QStringLiteral("Załacznik "), side);
    cbZalacznik->setObjectName(QStringLiteral("cbZalacznik"));
    cbZalacznik->setChecked(true);
    layout->addWidget(cbZalacznik);

    gbKopie = new QGroupBox(QStringLiteral("Orginał + kopia"), side);
    gbKopie->setObjectName(QStringLiteral("gbKopie"));
    m_copies = new QButtonGroup(this);
    auto *copies = new QHBoxLayout(gbKopie);
    QCheckBox **boxes[] = {&cbKopie0, &cbKopie1, &cbKopie2, &cbKopie3};
    for (int count = 0; count < 4; ++count) {
        auto *box = new QCheckBox(QString::number(count), gbKopie);
        box->setObjectName(QStringLiteral("cbKopie%1").arg(count));
        m_copies->addButton(box, count);
        copies->addWidget(box);
        *boxes[count] = box;
    }
    cbKopie1->setChecked(true);
    layout->addWidget(gbKopie);

    gbOstatnia = new QGroupBox(QStringLiteral("Ostatnia  Faktura "), side);
    gbOstatnia->setObjectName(QStringLiteral("gbOstatnia"));
    Label6 = new QLabel(NoInvoice, gbOstatnia);
    Label6->setObjectName(QStringLiteral("Label6"));
    QFont bold = Label6->font();
    bold.setBold(true);
    Label6->setFont(bold);
    edfak = new QLineEdit(QStringLiteral("0"), gbOstatnia);
    edfak->setObjectName(QStringLiteral("edfak"));
    edfak->setMaxLength(10);
    edfak->setReadOnly(true);
    btnDrukuj = TBitBtn::create(QStringLiteral("&Drukuj"), QStringLiteral("btnDrukuj"), gbOstatnia);
    btnPodglad
        = TBitBtn::create(QStringLiteral("&Podglad"), QStringLiteral("btnPodglad"), gbOstatnia);
    btnEksportKsef = TBitBtn::create(QStringLiteral("Eksport KSeF..."),
                                     QStringLiteral("btnEksportKsef"), gbOstatnia);
    btnUsun = TBitBtn::create(QStringLiteral("&Usuń"), QStringLiteral("btnUsun"), gbOstatnia);
    auto *last = new QVBoxLayout(gbOstatnia);
    last->addWidget(Label6);
    last->addWidget(edfak);
    last->addWidget(btnDrukuj);
    last->addWidget(btnPodglad);
    last->addWidget(btnEksportKsef);
    last->addWidget(btnUsun);
    layout->addWidget(gbOstatnia);
    layout->addStretch(1);
    side->setFixedWidth(190);
    return side;
}

void TfrmWybierzZlecenia::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    const QDate today = QDate::currentDate();
    deOd->setDate(today.addMonths(-1));
    deDo->setDate(today.addMonths(1));
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    LoadLVData();
    frameListView1->lvMain->selectByKey(m_orderKey);
}

void TfrmWybierzZlecenia::LoadLVData()
{
    TListView &list = *frameListView1->lvMain;
    list.beginUpdate();
    list.clear();
    if (Connection *database = session().Database) {
        reportFailures(QStringLiteral("Nie można odczytać listy zleceń do zafakturowania"), [&] {
            TListViewModel &rows = list.items();
            for (InvoiceableOrders::Row &row :
                 InvoiceableOrders::read(*database, deOd->date(), deDo->date(), m_clientKey))
                rows.addRow(row.texts, row.key);
        });
    }
    list.endUpdate();
}

std::vector<int> TfrmWybierzZlecenia::checkedOrders() const
{
    return frameListView1->lvMain->items().checkedKeys();
}

int TfrmWybierzZlecenia::lastInvoice() const
{
    return edfak->text().toInt();
}

void TfrmWybierzZlecenia::showLastInvoice(int key, const QString &text)
{
    edfak->setText(QString::number(key));
    Label6->setText(text);
}
