#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

// The arguments the print jobs take, read or refused with a Polish
// message (std::invalid_argument).
namespace PrintArguments {

[[noreturn]] void refuse(const QString &text);
// A day written yyyy-MM-dd.
QDate day(const QString &argument);
// The value of "--option ID", a positive whole number; 0 when the option
// is not given. subject names it in the refusal ("Identyfikator przewoźnika").
int optionKey(const QStringList &arguments, const QString &option, const QString &subject);

} // namespace PrintArguments
