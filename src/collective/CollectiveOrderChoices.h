#pragma once

#include <QString>

#include <vector>

class Connection;

// What the collective order editor offers to choose from, each with its key.
struct CollectiveOrderChoices
{
    struct Item
    {
        int key = 0;
        QString text;
    };

    // Contractors that carry (their role is carrier or both), by short name
    // in Polish alphabetical order, without the company itself, whose own
    // fleet has its own tab; the order's current carrier is kept among
    // them whatever its role.
    std::vector<Item> carriers;
    // VAT rates by key, with their descriptions.
    std::vector<Item> vatRates;

    // A list that cannot be read has been reported by its table object
    // and stays empty.
    static CollectiveOrderChoices load(Connection &connection, int ownerKey, int currentCarrier);
};
