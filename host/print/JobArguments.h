#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

#include <utility>

// How the print jobs read their arguments. A malformed one throws
// std::invalid_argument with a Polish sentence.
namespace JobArguments {

[[noreturn]] void refuse(const QString &text);
// A record's key: a positive whole number.
int keyOf(const QString &argument);
// A day written yyyy-MM-dd.
QDate dayOf(const QString &argument);
// A period of two such days, the first not after the second.
std::pair<QDate, QDate> periodOf(const QString &from, const QString &to);
// The value of "--option ID", a positive whole number; 0 when the option
// is not given. subject names it in the refusal ("Identyfikator przewoźnika").
int optionKey(const QStringList &arguments, const QString &option, const QString &subject);

} // namespace JobArguments
