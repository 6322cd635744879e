#pragma once

#include "TestDatabase.h"
#include "Transaction.h"
#include "Typing.h"

#include <QString>
#include <QStringList>

#include <gtest/gtest.h>

// A fresh database with a session for user 1, who may do everything on
// the forms a test names, and helpers that type as a user does.
class SiblingTest : public testing::Test
{
protected:
    SiblingTest();
    ~SiblingTest() override;

    // Rights of a user on form classes: run always, the others as given.
    void grant(const QStringList &formClasses, int userId = 1, bool add = true, bool edit = true,
               bool remove = true);
    int lastKey(const QString &table, const QString &key);

    static void type(QWidget *field, const QString &text) { Typing::into(field, text); }
    static void click(QWidget *button) { Typing::click(button); }
    // What a line edit or a combo box shows.
    static QString shown(QWidget *field);

    TestDatabase db;
    Transaction transaction{db.connection()};
};
