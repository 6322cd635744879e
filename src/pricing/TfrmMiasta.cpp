#include "TfrmMiasta.h"

#include "Configuration.h"
#include "Format.h"
#include "MessageService.h"
#include "NamedButton.h"
#include "ReportFailures.h"
#include "Routes.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDaneFirmy.h"
#include "TListView.h"
#include "TMiastaObj.h"
#include "TframeListView.h"
#include "TfrmAddEditMiasta.h"

#include <QBoxLayout>
#include <QCollator>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

const QString NoCity = QStringLiteral("---");
constexpr int DeletionOperation = 3;

class RightAligned : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->displayAlignment = Qt::AlignRight | Qt::AlignVCenter;
    }
};

} // namespace

TfrmMiasta::TfrmMiasta(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmMiasta"));
    setWindowTitle(QStringLiteral("Miasta"));
    setSizeGripEnabled(true);
    lblHeader->setText(QStringLiteral("Miasta"));
    btnOk->hide();
    btnCancel->setText(QStringLiteral("&Zamknij"));

    lblMiasta = new QLabel(QStringLiteral("Miejscowość: "), pnlBackground);
    lblMiasta->setObjectName(QStringLiteral("lblMiasta"));
    CBMiasta = new QComboBox(pnlBackground);
    CBMiasta->setObjectName(QStringLiteral("CBMiasta"));
    CBMiasta->setMaxVisibleItems(24);
    CBMiasta->setMinimumWidth(220);
    lblMiasta->setBuddy(CBMiasta);
    btnOdswiez
        = namedButton(QStringLiteral("Odśwież"), QStringLiteral("btnOdswiez"), pnlBackground);
    if (auto *header = qobject_cast<QBoxLayout *>(pnlBackground->layout())) {
        header->insertWidget(2, lblMiasta);
        header->insertWidget(3, CBMiasta);
        header->insertWidget(4, btnOdswiez);
    }

    frameListView1 = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
    TListView *list = frameListView1->lvMain;
    list->addColumn(QStringLiteral("IDMiasta"), 70);
    list->addColumn(QStringLiteral("Miasto"), 250);
    list->addColumn(QStringLiteral("Kod"), 80);
    list->addColumn(QStringLiteral("Odległość w km"), 100);
    list->setItemDelegateForColumn(2, new RightAligned(list));
    frameListView1->numericColumns()
        << QStringLiteral("IDMiasta") << QStringLiteral("Odległość w km");
    for (TBitBtn *button : {frameListView1->BitBtn1, frameListView1->BitBtn2,
                            frameListView1->BitBtn5, frameListView1->BitBtn7})
        button->hide();
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(frameListView1);

    connect(frameListView1->BitBtn4, &QPushButton::clicked, this, &TfrmMiasta::editRoute);
    connect(frameListView1->BitBtn6, &QPushButton::clicked, this, &TfrmMiasta::deleteRoute);
    connect(list, &TListView::dblClick, this, &TfrmMiasta::editRoute);
    connect(btnOdswiez, &QPushButton::clicked, this, &TfrmMiasta::btnOdswiezClick);
    resize(720, 480);
}

void TfrmMiasta::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    frameListView1->setROSetUserID(session().UserID);
    fillCities();
    const QString home = Configuration(session().Database)
                             .GetConfigString(QStringLiteral("MiastoDomowe"));
    for (int i = 1; i < CBMiasta->count(); ++i) {
        if (CBMiasta->itemText(i).compare(home, Qt::CaseInsensitive) == 0) {
            CBMiasta->setCurrentIndex(i);
            break;
        }
    }
    LoadLVData();
    connect(CBMiasta, &QComboBox::currentIndexChanged, this, &TfrmMiasta::LoadLVData);
}

void TfrmMiasta::fillCities()
{
    const QSignalBlocker quiet(CBMiasta);
    CBMiasta->clear();
    CBMiasta->addItem(NoCity, 0);
    Connection *database = session().Database;
    if (!database)
        return;
    std::vector<TMiastaObj> cities = TMiastaObj(*database).SelectAll();
    QCollator collator{QLocale(QLocale::Polish, QLocale::Poland)};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(cities.begin(), cities.end(), [&](const TMiastaObj &a, const TMiastaObj &b) {
        return collator.compare(a.NAZWA, b.NAZWA) < 0;
    });
    for (const TMiastaObj &city : cities)
        CBMiasta->addItem(city.NAZWA, city.ID_MIASTA);
}

int TfrmMiasta::selectedCity() const
{
    return CBMiasta->currentIndex() <= 0 ? 0 : CBMiasta->currentData().toInt();
}

void TfrmMiasta::btnOdswiezClick()
{
    const int city = selectedCity();
    fillCities();
    const int index = CBMiasta->findData(city);
    CBMiasta->setCurrentIndex(index < 0 ? 0 : index);
    LoadLVData();
}

void TfrmMiasta::LoadLVData()
{
    TListView *list = frameListView1->lvMain;
    list->beginUpdate();
    list->clear();
    Connection *database = session().Database;
    const int city = selectedCity();
    if (database && city != 0) {
        reportFailures(QStringLiteral("Nie można odczytać odległości"), [&] {
            for (const RouteRow &route : Routes::startingIn(*database, city)) {
                QStringList subItems;
                if (!route.toName.isEmpty())
                    subItems << route.toName << route.toPostcode;
                subItems << Format::number(route.kilometres, u"#0");
                list->addItem(QString::number(route.toCity), subItems, route.key);
            }
        });
    }
    list->endUpdate();
}

void TfrmMiasta::editRoute()
{
    TListView *list = frameListView1->lvMain;
    const int row = list->selectedIndex();
    if (row < 0)
        return;
    auto editor = TfrmRODefault::create<TfrmAddEditMiasta>(this, list->key(row));
    if (editor->showModal() != mrOk)
        return;
    LoadLVData();
    list->setSelectedIndex(std::min(row, list->itemCount() - 1));
    list->setFocus();
}

void TfrmMiasta::deleteRoute()
{
    TListView *list = frameListView1->lvMain;
    Connection *database = session().Database;
    const int row = list->selectedIndex();
    if (!database || row < 0)
        return;
    if (!Messages::confirm(QStringLiteral("Usuwanie"),
                           QStringLiteral("Usunąć wybraną pozycję")))
        return;
    const int routeKey = list->key(row);
    const TDaneFirmy firma;
    reportFailures(QStringLiteral("Nie można usunąć odległości"), [&] {
        const int formId = firma.GetFormID(this);
        Routes::remove(*database, routeKey);
        if (firma.GetConfigBool(QStringLiteral("SYSTEMMONITORDELETE")))
            firma.WriteHistory(routeKey, DeletionOperation, formId);
    });
    LoadLVData();
}
