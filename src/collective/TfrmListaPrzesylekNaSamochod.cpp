#include "TfrmListaPrzesylekNaSamochod.h"

#include "ConsignmentColumns.h"
#include "Consignments.h"
#include "MessageService.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TVzlecenia_zbiorObj.h"
#include "TfrmWybierzPrzesylki.h"
#include "TframeListView.h"

#include <QAction>
#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

QLineEdit *shownField(const char *name, QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(QString::fromLatin1(name));
    edit->setReadOnly(true);
    edit->setMaxLength(60);
    return edit;
}

} // namespace

TfrmListaPrzesylekNaSamochod::TfrmListaPrzesylekNaSamochod(QWidget *owner, int collectiveKey)
    : TfrmRODefault(owner), m_collectiveKey(collectiveKey)
{
    setObjectName(QStringLiteral("frmListaPrzesylekNaSamochod"));
    setWindowTitle(QStringLiteral("Lista przesyłek"));
    lblHeader->setText(QStringLiteral("Lista przesyłek na pojeździe"));
    lblHeaderDescription->setText(QStringLiteral("Lista przesyłek związanych ze zleceniem."));
    btnOk->hide();
    btnCancel->setText(QStringLiteral("&Zamknij"));
    setSizeGripEnabled(true);

    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(buildVehicle(pnlClient));
    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    ConsignmentColumns::add(*frameListView1, false);
    frameListView1->BitBtn4->hide();
    layout->addWidget(frameListView1, 1);

    acDodaj = new QAction(QStringLiteral("&Dodaj"), this);
    acDodaj->setObjectName(QStringLiteral("acDodaj"));
    acDelete = new QAction(QStringLiteral("&Usuń"), this);
    acDelete->setObjectName(QStringLiteral("acDelete"));
    connect(acDodaj, &QAction::triggered, this, &TfrmListaPrzesylekNaSamochod::acDodajExecute);
    connect(acDelete, &QAction::triggered, this, &TfrmListaPrzesylekNaSamochod::acDeleteExecute);
    connect(frameListView1->BitBtn5, &TBitBtn::clicked, acDodaj, &QAction::trigger);
    connect(frameListView1->BitBtn6, &TBitBtn::clicked, acDelete, &QAction::trigger);
    connect(frameListView1->BitBtn7, &TBitBtn::clicked, frameListView1, &TframeListView::Refresh);
    resize(980, 480);
}

QWidget *TfrmListaPrzesylekNaSamochod::buildVehicle(QWidget *parent)
{
    auto *panel = new QWidget(parent);
    panel->setObjectName(QStringLiteral("pnlPojazd"));
    edPojazd = shownField("edPojazd", panel);
    edKierowca = shownField("edKierowca", panel);
    edLadownosc = shownField("edLadownosc", panel);
    edZaladowano = shownField("edZaladowano", panel);
    edZaladowano->setAutoFillBackground(true);
    auto *grid = new QGridLayout(panel);
    grid->setContentsMargins(8, 4, 8, 4);
    const std::pair<const char *, QLineEdit *> fields[] = {
        {"Pojazd", edPojazd},
        {"Kierowca", edKierowca},
        {"Ładowność palet", edLadownosc},
        {"Załadowano", edZaladowano},
    };
    int column = 0;
    for (const auto &[caption, field] : fields) {
        auto *label = new QLabel(QString::fromUtf8(caption), panel);
        label->setBuddy(field);
        grid->addWidget(label, 0, column);
        grid->addWidget(field, 1, column);
        grid->setColumnStretch(column++, field == edKierowca ? 2 : 1);
    }
    return panel;
}

void TfrmListaPrzesylekNaSamochod::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    if (Connection *database = session().Database) {
        const TVzlecenia_zbiorObj head = TVzlecenia_zbiorObj(*database).SelectById(m_collectiveKey);
        edPojazd->setText(head.POJAZD);
        edKierowca->setText(head.KIEROWCA);
        m_capacity = head.LADOWNOSCPALET;
        edLadownosc->setText(QString::number(m_capacity));
    }
    LoadLVData();
}

void TfrmListaPrzesylekNaSamochod::LoadLVData()
{
    TListView &list = *frameListView1->lvMain;
    list.beginUpdate();
    list.clear();
    showLoad(0);
    if (Connection *database = session().Database) {
        reportFailures(QStringLiteral("Nie można odczytać listy przesyłek"), [&] {
            const std::vector<Consignments::Row> rows
                = Consignments::onVehicle(*database, m_collectiveKey);
            for (const Consignments::Row &row : rows)
                list.items().addRow(row.texts, row.key);
            showLoad(Consignments::plannedPallets(rows));
        });
    }
    list.endUpdate();
}

void TfrmListaPrzesylekNaSamochod::showLoad(int planned)
{
    edZaladowano->setText(QString::number(planned));
    m_overload = Consignments::overloaded(m_capacity, planned);
    QPalette colours = edZaladowano->palette();
    colours.setColor(QPalette::Base, m_overload ? QColor(Qt::red)
                                                : palette().color(QPalette::ToolTipBase));
    edZaladowano->setPalette(colours);
}

bool TfrmListaPrzesylekNaSamochod::overloadShown() const
{
    return m_overload;
}

void TfrmListaPrzesylekNaSamochod::acDodajExecute()
{
    const auto selection = TfrmRODefault::create<TfrmWybierzPrzesylki>(this, m_collectiveKey);
    if (selection->showModal() == mrOk)
        frameListView1->Refresh();
}

void TfrmListaPrzesylekNaSamochod::acDeleteExecute()
{
    TListView &list = *frameListView1->lvMain;
    const int row = list.selectedIndex();
    Connection *database = session().Database;
    if (row < 0 || !database)
        return;
    if (!Messages::confirm(QStringLiteral("Usuwanie"), QStringLiteral("Usunąć wybraną pozycję")))
        return;
    // The sum and its colour stay as they were until the list is refreshed.
    if (reportFailures(QStringLiteral("Nie zdjęto przesyłki z pojazdu"),
                       [&] { Consignments::unlink(*database, list.key(row)); }))
        list.deleteItem(row);
}
