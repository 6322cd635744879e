#include "TfrmZlecPrzychodzace.h"

#include "ClosedOrderIcon.h"
#include "KeyedLists.h"
#include "LinkButton.h"
#include "OrderListColumns.h"
#include "OrderPlaces.h"
#include "ReportFailures.h"
#include "RequiredDateEdit.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDaneFirmy.h"
#include "TDateEdit.h"
#include "TImageList.h"
#include "TRadioGroup.h"
#include "TframeListView.h"

#include <QAction>
#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>
#include <QMenu>

namespace {

constexpr int MinimumWidth = 712;
constexpr QSize InitialSize(963, 649);

} // namespace

TfrmZlecPrzychodzace::TfrmZlecPrzychodzace(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmZlecPrzychodzace"));
    setWindowTitle(QStringLiteral("Zlecenia przewozowe"));
    setWindowFlags(windowFlags() | Qt::WindowMinMaxButtonsHint);
    setSizeGripEnabled(true);
    setMinimumWidth(MinimumWidth);
    resize(InitialSize);
    lblHeader->setText(QStringLiteral("Zlecenia przewozowe w ruchu krajowym"));

    auto *client = new QVBoxLayout(pnlClient);
    client->setContentsMargins(0, 0, 0, 0);
    client->setSpacing(0);
    auto *pnlTop = new QWidget(pnlClient);
    pnlTop->setObjectName(QStringLiteral("pnlTop"));
    buildFilters(pnlTop);
    client->addWidget(pnlTop);

    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    TListView *list = frameListView1->lvMain;
    for (int column = 0; column < OrderListColumns::Count; ++column) {
        const OrderListColumns::Description &d = OrderListColumns::all()[column];
        if (d.width > 0)
            list->addColumn(OrderListColumns::caption(column), d.width);
        else
            list->addColumn(OrderListColumns::caption(column));
        if (d.rightAligned)
            list->setColumnAlignment(column, Qt::AlignRight);
    }
    frameListView1->numericColumns() << OrderListColumns::numericCaptions();
    frameListView1->dateColumns() << OrderListColumns::dateCaptions();
    list->setGridLines(true);
    TImageList *images = frameListView1->lvImages;
    while (images->count() < ClosedOrderImage)
        images->add(QIcon());
    images->add(closedOrderIcon(images->size()));
    // The padlock must not take the room of the 8 digits of "Numer".
    list->setRowImageRoom(true);
    client->addWidget(frameListView1, 1);

    pnlBttns = new QWidget(pnlClient);
    pnlBttns->setObjectName(QStringLiteral("pnlBttns"));
    buildButtons(pnlBttns);
    client->addWidget(pnlBttns);

    buildFooter();
    buildActions();
    extendPopupMenu();
}

TfrmZlecPrzychodzace::~TfrmZlecPrzychodzace() = default;

void TfrmZlecPrzychodzace::buildFilters(QWidget *parent)
{
    auto *lblOd = new QLabel(QStringLiteral("Od daty załadunku od:"), parent);
    deOd = requiredDateEdit(QStringLiteral("deOd"), parent);
    lblOd->setBuddy(deOd);
    auto *lblDo = new QLabel(QStringLiteral("do:"), parent);
    deDo = requiredDateEdit(QStringLiteral("deDo"), parent);
    lblDo->setBuddy(deDo);

    RadioGroup1 = new TRadioGroup(
        {QStringLiteral("wszystkie"), QStringLiteral("spedycja"), QStringLiteral("przewóz")}, 3,
        parent);
    RadioGroup1->setObjectName(QStringLiteral("RadioGroup1"));
    RadioGroup1->setTitle(QStringLiteral("Rodzaj zlecenia"));
    RadioGroup1->setItemIndex(OrderListFilter::AllKinds);

    RadioGroup2 = new TRadioGroup({QStringLiteral("wszystkie"), QStringLiteral("bez oddziału"),
                                   QStringLiteral("oddział")},
                                  3, parent);
    RadioGroup2->setObjectName(QStringLiteral("RadioGroup2"));
    RadioGroup2->setTitle(QStringLiteral("Umiejscowienie"));
    RadioGroup2->setItemIndex(OrderListFilter::AllLocations);
    RadioGroup2->hide();

    Label4 = new QLabel(QStringLiteral("Dysponent:"), parent);
    Label4->setObjectName(QStringLiteral("Label4"));
    cbWspolnik = new QComboBox(parent);
    cbWspolnik->setObjectName(QStringLiteral("cbWspolnik"));
    Label4->setBuddy(cbWspolnik);
    Label4->hide();
    cbWspolnik->hide();

    auto *layout = new QHBoxLayout(parent);
    layout->setContentsMargins(8, 4, 8, 4);
    layout->addWidget(lblOd);
    layout->addWidget(deOd);
    layout->addWidget(lblDo);
    layout->addWidget(deDo);
    layout->addSpacing(12);
    layout->addWidget(RadioGroup1);
    layout->addWidget(RadioGroup2);
    layout->addWidget(Label4);
    layout->addWidget(cbWspolnik);
    layout->addStretch(1);
}

void TfrmZlecPrzychodzace::buildButtons(QWidget *parent)
{
    btnPowiel = TBitBtn::create(QStringLiteral("Powiel"), QStringLiteral("btnPowiel"), parent);
    BitBtn5 = TBitBtn::create(QStringLiteral("Wstaw z wzorca"), QStringLiteral("BitBtn5"), parent);
    BitBtn5->hide();
    BitBtn12 = TBitBtn::create(QStringLiteral("Towary"), QStringLiteral("BitBtn12"), parent);
    BitBtn13 = TBitBtn::create(QStringLiteral("M.załadunku"), QStringLiteral("BitBtn13"), parent);
    BitBtn4 = TBitBtn::create(QStringLiteral("M.Rozladunku"), QStringLiteral("BitBtn4"), parent);
    BitBtn2 = TBitBtn::create(QStringLiteral("&Fakturuj"), QStringLiteral("BitBtn2"), parent);
    BitBtn11
        = TBitBtn::create(QStringLiteral("Usuń fakturę"), QStringLiteral("BitBtn11"), parent);
    // Removing invoices is for the administrator, who knows the key.
    BitBtn11->setEnabled(false);
    BitBtn10
        = TBitBtn::create(QStringLiteral("Drukuj fakturę"), QStringLiteral("BitBtn10"), parent);
    BitBtn1
        = TBitBtn::create(QStringLiteral("D&rukuj zlecenie"), QStringLiteral("BitBtn1"), parent);
    BitBtn6 = TBitBtn::create(QStringLiteral("&Kilometry"), QStringLiteral("BitBtn6"), parent);
    btnCenniki = TBitBtn::create(QStringLiteral("-> *.CSV"), QStringLiteral("btnCenniki"), parent);
    btnKarta
        = TBitBtn::create(QStringLiteral("&Generuj Karte"), QStringLiteral("btnKarta"), parent);
    BtnFakturaObca = TBitBtn::create(QStringLiteral("Faktura O&bca"),
                                     QStringLiteral("BtnFakturaObca"), parent);
    btnZest = TBitBtn::create(QStringLiteral("Zestawienie"), QStringLiteral("btnZest"), parent);

    // Two rows, so that every caption stays whole at the window's minimum
    // width: the order's own dialogs above, its documents below.
    auto *rows = new QVBoxLayout(parent);
    rows->setContentsMargins(6, 4, 6, 4);
    rows->setSpacing(4);
    auto *layout = new QHBoxLayout;
    rows->addLayout(layout);
    layout->addWidget(btnPowiel);
    layout->addWidget(BitBtn5);
    layout->addWidget(BitBtn12);
    layout->addWidget(BitBtn13);
    layout->addWidget(BitBtn4);
    layout->addWidget(btnKarta);
    layout->addStretch(1);
    layout->addWidget(BitBtn6);
    layout->addWidget(btnCenniki);
    auto *documents = new QHBoxLayout;
    rows->addLayout(documents);
    documents->addWidget(BitBtn2);
    documents->addWidget(BitBtn10);
    documents->addWidget(BitBtn11);
    documents->addWidget(BitBtn1);
    documents->addWidget(BtnFakturaObca);
    documents->addStretch(1);
    documents->addWidget(btnZest);
}

void TfrmZlecPrzychodzace::buildFooter()
{
    auto *label = new QLabel(QStringLiteral("Kwota:"), pnlFooter);
    label->setObjectName(QStringLiteral("Label3"));
    lblKwota = new QLabel(QStringLiteral("0.00"), pnlFooter);
    lblKwota->setObjectName(QStringLiteral("lblKwota"));
    lblKwota->setMinimumWidth(120);
    QFont bold = lblKwota->font();
    bold.setBold(true);
    lblKwota->setFont(bold);
    auto *footer = static_cast<QBoxLayout *>(pnlFooter->layout());
    footer->insertWidget(0, label);
    footer->insertWidget(1, lblKwota);
    btnOk->setText(QStringLiteral("&Zamknij"));
    btnCancel->hide();
}

void TfrmZlecPrzychodzace::buildActions()
{
    const auto action = [this](const QString &caption, const QString &name) {
        auto *created = new QAction(caption, this);
        created->setObjectName(name);
        addAction(created);
        return created;
    };
    acDodaj = action(QStringLiteral("&Dodaj"), QStringLiteral("acDodaj"));
    acPopraw = action(QStringLiteral("&Popraw"), QStringLiteral("acPopraw"));
    acDelete = action(QStringLiteral("&Usuń"), QStringLiteral("acDelete"));
    acShowDelete = action(QStringLiteral("acShowDelete"), QStringLiteral("acShowDelete"));
    acShowDelete->setShortcut(QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_U));
    acPowiel = action(QStringLiteral("Powiel"), QStringLiteral("acPowiel"));
    acWzor = action(QStringLiteral("Wstaw z wzorca"), QStringLiteral("acWzor"));
    acTowary = action(QStringLiteral("Towary"), QStringLiteral("acTowary"));
    acAddLadunki = action(QStringLiteral("Doda&j ładunki"), QStringLiteral("acAddLadunki"));
    acMiejsceZaladunku
        = action(QStringLiteral("M.załadunku"), QStringLiteral("acMiejsceZaladunku"));
    acMiejscaRozladunku
        = action(QStringLiteral("M.Rozladunku"), QStringLiteral("acMiejscaRozladunku"));
    acUsunLadunek = action(QStringLiteral("Usuń ładunek"), QStringLiteral("acUsunLadunek"));
    acAdvancedEdit
        = action(QStringLiteral("Zaawansowana edycja"), QStringLiteral("acAdvancedEdit"));
    acAdvancedEdit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_A));
    Zamknij1 = action(QStringLiteral("Zamknij\\Otwórz"), QStringLiteral("Zamknij1"));
    acFaktura = action(QStringLiteral("&Fakturuj"), QStringLiteral("acFaktura"));
    acPrintFra = action(QStringLiteral("Drukuj fakturę"), QStringLiteral("acPrintFra"));
    auto *enableInvoiceRemoval
        = action(QStringLiteral("Usuń fakturę"), QStringLiteral("acUsunFakture"));
    enableInvoiceRemoval->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E));
    acDrukuj = action(QStringLiteral("D&rukuj zlecenie"), QStringLiteral("acDrukuj"));
    acKarta = action(QStringLiteral("&Generuj kartę"), QStringLiteral("acKarta"));
    acZestawienie = action(QStringLiteral("Zestawienie"), QStringLiteral("acZestawienie"));

    for (QAction *withShortcut : {acShowDelete, acAdvancedEdit, enableInvoiceRemoval})
        withShortcut->setShortcutContext(Qt::WidgetWithChildrenShortcut);

    connect(acDodaj, &QAction::triggered, this, &TfrmZlecPrzychodzace::acDodajExecute);
    connect(acPopraw, &QAction::triggered, this, &TfrmZlecPrzychodzace::acPoprawExecute);
    connect(frameListView1->lvMain, &TListView::dblClick, acPopraw, &QAction::trigger);
    connect(acDelete, &QAction::triggered, this, &TfrmZlecPrzychodzace::acDeleteExecute);
    connect(acShowDelete, &QAction::triggered, this, &TfrmZlecPrzychodzace::acDeleteExecute);
    connect(acPowiel, &QAction::triggered, this, &TfrmZlecPrzychodzace::acPowielExecute);
    connect(acWzor, &QAction::triggered, this, &TfrmZlecPrzychodzace::acWzorExecute);
    connect(acTowary, &QAction::triggered, this, &TfrmZlecPrzychodzace::acTowaryExecute);
    connect(acAddLadunki, &QAction::triggered, this, &TfrmZlecPrzychodzace::acTowaryExecute);
    connect(acMiejsceZaladunku, &QAction::triggered, this,
            [this] { openPlace(OrderPlaces::Loading); });
    connect(acMiejscaRozladunku, &QAction::triggered, this,
            [this] { openPlace(OrderPlaces::Unloading); });
    connect(acUsunLadunek, &QAction::triggered, this,
            &TfrmZlecPrzychodzace::acUsunLadunekExecute);
    connect(acAdvancedEdit, &QAction::triggered, this,
            &TfrmZlecPrzychodzace::acAdvancedEditExecute);
    connect(Zamknij1, &QAction::triggered, this, &TfrmZlecPrzychodzace::Zamknij1Click);
    connect(acFaktura, &QAction::triggered, this, &TfrmZlecPrzychodzace::acFakturaExecute);
    connect(enableInvoiceRemoval, &QAction::triggered, BitBtn11,
            [this] { BitBtn11->setEnabled(true); });
    connect(BitBtn11, &QPushButton::clicked, this, &TfrmZlecPrzychodzace::BitBtn11Click);
    connect(acPrintFra, &QAction::triggered, this, &TfrmZlecPrzychodzace::acPrintFraExecute);
    connect(acDrukuj, &QAction::triggered, this, &TfrmZlecPrzychodzace::acDrukujExecute);
    connect(acKarta, &QAction::triggered, this, &TfrmZlecPrzychodzace::acKartaExecute);
    connect(acZestawienie, &QAction::triggered, this,
            &TfrmZlecPrzychodzace::acZestawienieExecute);

    linkButton(frameListView1->BitBtn5, acDodaj);
    linkButton(frameListView1->BitBtn4, acPopraw);
    linkButton(frameListView1->BitBtn6, acDelete);
    linkButton(btnPowiel, acPowiel);
    linkButton(BitBtn5, acWzor);
    linkButton(BitBtn12, acTowary);
    linkButton(BitBtn13, acMiejsceZaladunku);
    linkButton(BitBtn4, acMiejscaRozladunku);
    linkButton(BitBtn2, acFaktura);
    linkButton(BitBtn10, acPrintFra);
    linkButton(BitBtn1, acDrukuj);
    linkButton(btnKarta, acKarta);
    linkButton(btnZest, acZestawienie);
    connect(frameListView1->BitBtn7, &QPushButton::clicked, frameListView1,
            &TframeListView::Refresh);
    connect(btnCenniki, &QPushButton::clicked, this, &TfrmZlecPrzychodzace::btnCennikiClick);
    connect(BitBtn6, &QPushButton::clicked, this, &TfrmZlecPrzychodzace::BitBtn6Click);
    connect(BtnFakturaObca, &QPushButton::clicked, this,
            &TfrmZlecPrzychodzace::BtnFakturaObcaClick);
    buildStatementsMenu();

    if (BtnKalendarz1) {
        BtnKalendarz1->show();
        connect(BtnKalendarz1, &QPushButton::clicked, this, [] { TDaneFirmy().ShowScheduler(); });
    }
    if (BitBtnTerminarz) {
        BitBtnTerminarz->show();
        connect(BitBtnTerminarz, &QPushButton::clicked, this,
                [] { TDaneFirmy().ShowAppointments(); });
    }
}

void TfrmZlecPrzychodzace::extendPopupMenu()
{
    QMenu *menu = frameListView1->pmMain;
    QAction *first = menu->actions().value(0);
    const QList<QAction *> own{acDodaj, acPopraw, acDelete, Zamknij1};
    menu->insertActions(first, own);
    for (const QString &caption : {QStringLiteral("Do&kumenty"), QStringLiteral("Ko&nta")}) {
        auto *disabled = new QAction(caption, menu);
        disabled->setEnabled(false);
        menu->insertAction(first, disabled);
    }
    menu->insertSeparator(first);
}

void TfrmZlecPrzychodzace::FormCreate()
{
    setROFlatControls(true);
    setROShowHeader(true);
    // The register is the module's main window: Esc must not end it.
    setROCloseOnESC(false);
    m_kartaZeZlecen = session().Database
        && TDaneFirmy().GetConfigBool(QStringLiteral("KARTAZEZLECEN"));
    const QDate today = QDate::currentDate();
    deOd->setDate(today);
    deDo->setDate(today);

    TfrmRODefault::FormCreate();

    frameListView1->setROSetUserID(session().UserID);
    deOd->setDate(today.addMonths(-1));
    deDo->setDate(today.addMonths(1));
    fillPartnerList();
    LoadLVData();
    UpdateControls();
}

void TfrmZlecPrzychodzace::fillPartnerList()
{
    cbWspolnik->clear();
    cbWspolnik->addItem(QStringLiteral("---"), 0);
    if (Connection *database = session().Database) {
        reportFailures(QStringLiteral("Nie można odczytać dysponentów"),
                       [&] { KeyedLists::fillFilters(cbWspolnik, *database); });
    }
    cbWspolnik->setCurrentIndex(0);
}

OrderListFilter TfrmZlecPrzychodzace::filter() const
{
    OrderListFilter filter;
    filter.from = deOd->date();
    filter.to = deDo->date();
    filter.kind = RadioGroup1->itemIndex();
    filter.location = RadioGroup2->itemIndex();
    filter.partnerIndex = cbWspolnik->currentIndex();
    if (RadioGroup1->itemIndex() != OrderListFilter::AllKinds && session().Database)
        filter.ownerKey = TDaneFirmy().GetConfigInt(QStringLiteral("IDWłaściciela"));
    return filter;
}

int TfrmZlecPrzychodzace::selectedOrder() const
{
    const TListView *list = frameListView1->lvMain;
    const int row = list->selectedIndex();
    return row < 0 ? 0 : list->key(row);
}
