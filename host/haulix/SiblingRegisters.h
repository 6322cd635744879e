#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The sibling modules whose register the host opens directly, for setting
// up master data: the library (Library/<name>) and its register entry.
struct SiblingRegister
{
    QString library;
    QString entry;
    // The scheduler's entries take a fourth, reserved argument.
    bool scheduler = false;

    static std::optional<SiblingRegister> named(const QString &library);
    static QStringList libraries();
};
