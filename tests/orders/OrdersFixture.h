#pragma once

#include "SessionFixture.h"
#include "TZlecenia_przychObj.h"
#include "TestData.h"

#include <QComboBox>

#include <gtest/gtest.h>

// A fresh database set as the session's, for the order dialogs; the rows
// they need come from TestData.
class OrdersFixture : public SessionFixture
{
protected:
    static constexpr int SessionUser = 7;

    OrdersFixture() : SessionFixture(SessionUser) {}

    // The order inserted last, read back with every column.
    TZlecenia_przychObj lastOrder();

    // Chooses the item carrying the key as a user does, so that the
    // list's "activated" reactions run.
    static void choose(QComboBox *combo, int key);
};
