#include "PriceListCombo.h"

#include "PriceGroups.h"
#include "ReportFailures.h"

#include <QCollator>
#include <QComboBox>
#include <QSignalBlocker>

#include <algorithm>

void fillPriceListCombo(QComboBox *combo, Connection *connection)
{
    const QSignalBlocker quiet(combo);
    combo->clear();
    combo->addItem(PriceGroups::MainPriceList, 0);
    std::vector<PriceGroup> groups;
    if (connection) {
        reportFailures(QStringLiteral("Nie można odczytać grup cenników"),
                    [&] { groups = PriceGroups::unblocked(*connection); });
    }
    QCollator collator{QLocale(QLocale::Polish, QLocale::Poland)};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(groups.begin(), groups.end(),
                     [&](const PriceGroup &a, const PriceGroup &b) {
                         return collator.compare(a.name, b.name) < 0;
                     });
    for (const PriceGroup &group : groups)
        combo->addItem(group.name, group.key);
    combo->setCurrentIndex(0);
}

int selectedPriceList(const QComboBox *combo)
{
    return combo->currentIndex() < 0 ? 0 : combo->currentData().toInt();
}
