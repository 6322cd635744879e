// How the order editor prices an order: tariffs, price lists, and the
// distance of the route from the distance memory.
#include "TfrmAddEditZlecenia_Przych.h"

#include "Distances.h"
#include "KeyedLists.h"
#include "PriceGroups.h"
#include "PriceLookup.h"
#include "ReportFailures.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TfrmMiasta.h"
#include "TfrmStawkiTaryfowe.h"

#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace {

// The kinds of the tariff register: carriers' and the company's own.
constexpr int CarrierTariffs = 0;
constexpr int OwnTariffs = 1;

} // namespace

void TfrmAddEditZlecenia_Przych::connectPricing()
{
    connect(acTaryfa, &QAction::triggered, this, &TfrmAddEditZlecenia_Przych::acTaryfaExecute);
    connect(acKosztTaryfa, &QAction::triggered, this,
            &TfrmAddEditZlecenia_Przych::acKosztTaryfaExecute);
    for (QComboBox *city : {cbMiastoOd, cbMiastoPrzez, cbMiastoDo})
        connect(city, &QComboBox::activated, this, &TfrmAddEditZlecenia_Przych::cityChosen);
    for (QPushButton *cities : {btnMiastoOd, btnMiastoPrzez, btnMiastoDo})
        connect(cities, &QPushButton::clicked, this, &TfrmAddEditZlecenia_Przych::btnMiastoClick);
    connect(btnCennik, &QPushButton::clicked, this, [this] {
        pmCennik->popup(btnCennik->mapToGlobal(QPoint(0, btnCennik->height())));
    });
    ceTaryfa->installEventFilter(this);
}

void TfrmAddEditZlecenia_Przych::fillPriceListMenu()
{
    pmCennik->clear();
    std::vector<PriceGroup> groups;
    reportFailures(QStringLiteral("Nie można odczytać grup cenników"),
                   [&] { groups = PriceGroups::unblocked(m_order.connection()); });
    groups.insert(groups.begin(), PriceGroup{0, PriceGroups::MainPriceList, false});
    for (const PriceGroup &group : groups) {
        QAction *entry = pmCennik->addAction(group.name);
        entry->setData(group.key);
        const int key = group.key;
        connect(entry, &QAction::triggered, this, [this, key] { priceListChosen(key); });
    }
}

void TfrmAddEditZlecenia_Przych::priceListChosen(int group)
{
    double amount = 0.0;
    if (!reportFailures(QStringLiteral("Nie można odczytać stawki z cennika"), [&] {
            amount = PriceLookup::amount(m_order.connection(), group, seOdleglosc->value(),
                                         seKMPustych->value());
        }))
        return;
    rbStawkaUmowna->setChecked(true);
    rbStawkaClick();
    seKwota->setValue(amount);
    recomputeTotal();
}

void TfrmAddEditZlecenia_Przych::acTaryfaExecute()
{
    auto picker = TfrmRODefault::create<TfrmStawkiTaryfowe>(this, m_tariffKey, OwnTariffs);
    if (picker->showModal() == mrOk && picker->hasSelectedTariff())
        tariffChosen(picker->selectedTariff());
}

void TfrmAddEditZlecenia_Przych::acKosztTaryfaExecute()
{
    auto picker = TfrmRODefault::create<TfrmStawkiTaryfowe>(this, m_costTariffKey, CarrierTariffs);
    if (picker->showModal() == mrOk && picker->hasSelectedTariff())
        costTariffChosen(picker->selectedTariff());
}

void TfrmAddEditZlecenia_Przych::tariffChosen(const TTaryfyprzewoznikaObj &tariff)
{
    m_tariffKey = tariff.ID_TARYFYPRZEWOZNIKA;
    ceTaryfa->setText(tariff.NAZWA_STAWKI);
    edStawkaKMLadowny->setValue(tariff.KWOTA_ZA_KM_LAD);
    edStawkaKMPusty->setValue(tariff.KWOTA_ZA_KM);
    edStawkaIloscGodzin->setValue(tariff.KWOTA_ZA_GODZ);
    edStawkaIloscPalet->setValue(tariff.KWOTA_ZA_PALETE);
    recomputeTotal();
}

void TfrmAddEditZlecenia_Przych::costTariffChosen(const TTaryfyprzewoznikaObj &tariff)
{
    m_costTariffKey = tariff.ID_TARYFYPRZEWOZNIKA;
    ceKosztTaryfa->setText(tariff.NAZWA_STAWKI);
}

void TfrmAddEditZlecenia_Przych::clearTariff()
{
    m_tariffKey = 0;
    ceTaryfa->clear();
    recomputeTotal();
}

bool TfrmAddEditZlecenia_Przych::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == ceTaryfa && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Delete) {
        clearTariff();
        return true;
    }
    return TfrmRODefault::eventFilter(watched, event);
}

void TfrmAddEditZlecenia_Przych::cityChosen()
{
    std::optional<int> kilometres;
    reportFailures(QStringLiteral("Nie można odczytać odległości"), [&] {
        kilometres = Distances::lookup(
            m_order.connection(), KeyedLists::currentKeyOr(cbMiastoOd, m_order.IDMIASTO_OD),
            KeyedLists::currentKeyOr(cbMiastoPrzez, m_order.IDMIASTO_VIA),
            KeyedLists::currentKeyOr(cbMiastoDo, m_order.IDMIASTO_DO));
    });
    seOdleglosc->setValue(kilometres.value_or(0));
    seKMLadownych->setValue(kilometres.value_or(0));
}

void TfrmAddEditZlecenia_Przych::btnMiastoClick()
{
    TfrmRODefault::create<TfrmMiasta>(this)->showModal();
    // The register may have been used to add or rename cities.
    reportFailures(QStringLiteral("Nie można odczytać miast"), [&] {
        for (QComboBox *city : {cbMiastoOd, cbMiastoPrzez, cbMiastoDo}) {
            const int chosen = KeyedLists::currentKey(city);
            KeyedLists::fillCities(city, m_order.connection());
            KeyedLists::selectKey(city, chosen);
        }
    });
}
