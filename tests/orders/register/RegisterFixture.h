#pragma once

#include "SessionFixture.h"
#include "TZlecenia_przychObj.h"
#include "TfrmZlecPrzychodzace.h"

#include <gtest/gtest.h>

#include <QComboBox>

#include <functional>
#include <memory>
#include <vector>

// A seeded demo company (users 1 all rights, 2 no delete, 3 run only) with
// the session set to user 1 on the test's connection and transaction.
class RegisterFixture : public SessionFixture
{
protected:
    static constexpr int DemoOrders = 20;

    void SetUp() override;

    std::unique_ptr<TfrmZlecPrzychodzace> openRegister();

    // Inserts an order dated today (unless the change says otherwise) and
    // returns its key.
    int addOrder(const std::function<void(TZlecenia_przychObj &)> &change = {});
    // Inserts a place of the type (1 loading, 2 unloading) with the street
    // of its first address; returns its key.
    int addPlace(int orderKey, int type, const QString &street);
    TZlecenia_przychObj order(int key);
    int orderCount();
    // How many orders the register lists with its initial range, a month
    // either side of today (and every undated order), that also meet the
    // condition.
    int listedCount(const QString &condition = QStringLiteral("1=1"));

    // The text of a column in the row of an order; fails when not listed.
    static QString cell(const TfrmZlecPrzychodzace &form, int orderKey, int column);
    static bool listed(const TfrmZlecPrzychodzace &form, int orderKey);
    static void select(TfrmZlecPrzychodzace &form, int orderKey);
    // Chooses the item carrying the key as a user does: types the start of
    // its name (up to a blank, which would open the list) into the list.
    // The list's window must be the active one.
    static void choose(QComboBox *combo, int key);
    // Keyboard shortcuts reach only a shown, active window: shows the
    // form, waits until it is active and puts the focus in its list.
    static void showActive(QWidget &form);
    // Exactly count messages were shown, each the administrator's refusal.
    static void expectRefusals(std::size_t count);
    // An invoice numbered 501/07/2026 of the orders, with one position;
    // returns its key.
    int invoiceOf(const std::vector<int> &orderKeys);
};
