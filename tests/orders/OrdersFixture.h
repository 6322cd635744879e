#pragma once

#include "SessionFixture.h"
#include "TZlecenia_przychObj.h"
#include "TestData.h"

#include <QComboBox>
#include <QElapsedTimer>

#include <gtest/gtest.h>

#include <map>

// A fresh database set as the session's, for the order dialogs; the rows
// they need come from TestData.
class OrdersFixture : public SessionFixture
{
protected:
    static constexpr int SessionUser = 7;

    OrdersFixture() : SessionFixture(SessionUser) {}

    // The order inserted last, read back with every column.
    TZlecenia_przychObj lastOrder();

    // Chooses the item carrying the key as a user does: types the start of
    // its name (up to a blank, which would open the list) into the focused
    // list. The list's window must be the active one.
    void choose(QComboBox *combo, int key);

private:
    // When each list was last typed into: letters typed again within the
    // keyboard interval would join the earlier search, so a user pauses.
    std::map<const QComboBox *, QElapsedTimer> m_typedInto;
};
