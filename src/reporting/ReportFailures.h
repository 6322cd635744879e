#pragma once

#include "DbError.h"

#include <QString>

#include <exception>

// Logs and shows one failure the way reportFailures does.
void reportFailure(const QString &whatFailed, const QString &reason);

// How every handler of a form (a button, a list, a menu, the form's own
// start) runs database work that is not a table object's:
//
//     reportFailures(QStringLiteral("Nie można zapisać stawki"), [&] {
//         PriceCells::store(database, group, row, column, amount);
//     });
//
// An exception must not escape into the event loop. A failure is written
// to SQLErrors.ini and shown once in a "Błąd" box: what could not be done,
// then the database's reason. The work then counts as not done: the
// function returns false and the handler goes on or returns as it sees
// fit. Table objects report their own failures and need no wrapping.
template <class Work>
bool reportFailures(const QString &whatFailed, Work &&work)
{
    try {
        work();
        return true;
    } catch (const DbError &error) {
        reportFailure(whatFailed, error.message());
    } catch (const std::exception &error) {
        reportFailure(whatFailed, QString::fromLocal8Bit(error.what()));
    }
    return false;
}
