#pragma once

#include "SessionFixture.h"
#include "TZlecenia_przychObj.h"

#include <QComboBox>
#include <QString>

#include <gtest/gtest.h>

// A fresh database set as the session's, with helpers that add the few
// records an order dialog needs.
class OrdersFixture : public SessionFixture
{
protected:
    static constexpr int SessionUser = 7;

    OrdersFixture() : SessionFixture(SessionUser) {}

    int addContractor(const QString &shortName);
    int addCity(const QString &name);
    int addTariff(const QString &name, int own, double perLoadedKm, double perTonne,
                  double perHour, double perPallet);
    int addUnit(const QString &name);
    void setOwner(int contractorKey);
    void addFilter(const QString &text);
    int lastKey(const QString &table, const QString &key);
    // The order inserted last, read back with every column.
    TZlecenia_przychObj lastOrder();

    // Chooses the item carrying the key as a user does, so that the
    // list's "activated" reactions run.
    static void choose(QComboBox *combo, int key);
};
