#pragma once

#include <QString>

#include <vector>

class Connection;
class TKarty_drObj;

// The road cards as the road-card choice lists them: the card's key, six
// blanks, the driver, four blanks, the vehicle's registration, sorted as
// text, so that card 10 comes before card 9.
struct RoadCardItem
{
    QString text;
    int cardKey = 0;

    static std::vector<RoadCardItem> of(const std::vector<TKarty_drObj> &cards);
    // Every road card, read through its table object (a failure has been
    // shown by it and gives no items).
    static std::vector<RoadCardItem> load(Connection &connection);
};
