#include "CollectiveOrderChoices.h"

#include "ContractorRoles.h"
#include "TKontrahenciObj.h"
#include "TStawki_vatObj.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

CollectiveOrderChoices CollectiveOrderChoices::load(Connection &connection, int ownerKey,
                                                    int currentCarrier)
{
    CollectiveOrderChoices choices;
    for (const TKontrahenciObj &c : TKontrahenciObj(connection).SelectAll()) {
        const bool offered = ContractorRoles::isCarrier(c.KIERUNEK) && c.ID_KONTRAHENTA != ownerKey;
        if (offered || (currentCarrier != 0 && c.ID_KONTRAHENTA == currentCarrier))
            choices.carriers.push_back({c.ID_KONTRAHENTA, c.SKROT});
    }
    const QCollator collator{QLocale(QLocale::Polish, QLocale::Poland)};
    std::stable_sort(choices.carriers.begin(), choices.carriers.end(),
                     [&](const Item &a, const Item &b) {
                         return collator.compare(a.text, b.text) < 0;
                     });
    for (const TStawki_vatObj &rate :
         TStawki_vatObj(connection).SelectAll(QStringLiteral("ID_STAWKI")))
        choices.vatRates.push_back({rate.ID_STAWKI, rate.OPIS});
    return choices;
}
