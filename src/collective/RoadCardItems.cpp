#include "RoadCardItems.h"

#include "TKarty_drObj.h"

#include <algorithm>

std::vector<RoadCardItem> RoadCardItem::of(const std::vector<TKarty_drObj> &cards)
{
    std::vector<RoadCardItem> items;
    items.reserve(cards.size());
    for (const TKarty_drObj &card : cards) {
        items.push_back({QString::number(card.ID_KARTY_DR) + QString(6, u' ') + card.KIEROWCA
                             + QString(4, u' ') + card.REJ_POJAZD,
                         card.ID_KARTY_DR});
    }
    std::stable_sort(items.begin(), items.end(),
                     [](const RoadCardItem &a, const RoadCardItem &b) { return a.text < b.text; });
    return items;
}

std::vector<RoadCardItem> RoadCardItem::load(Connection &connection)
{
    return of(TKarty_drObj(connection).SelectAll());
}
