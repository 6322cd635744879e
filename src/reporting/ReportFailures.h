#pragma once

#include "DbError.h"
#include "ErrorLog.h"

#include <QString>

#include <exception>

// What the user reads when database work fails: what did not happen, then
// one sentence on what happened and what to do about it. The engine's
// English and the statement never reach the screen; they go to
// SQLErrors.ini.
namespace FailureText {

// By the kind of the failure: another workstation changed the same data
// (try again), the data is locked at another workstation (try again in a
// moment), the database cannot be reached (check the connection), or the
// database refused the work (details in the log file named).
QString advice(DbError::Kind kind, const QString &logFile = ErrorLog::SqlErrors);
// A failure that is not the database's.
QString unexpected();

// whatFailed ends with a full stop (one is added when missing); the
// advice follows on its own line.
QString message(const QString &whatFailed, const QString &advice);

} // namespace FailureText

// Logs the failure (what failed, the engine's text and the statement) and
// shows its Polish message once in a "Błąd" box.
void reportFailure(const QString &whatFailed, const DbError &error);
void reportFailure(const QString &whatFailed, const std::exception &error);

// How every handler of a form (a button, a list, a menu, the form's own
// start) runs database work that is not a table object's:
//
//     reportFailures(QStringLiteral("Nie można zapisać stawki"), [&] {
//         PriceCells::store(database, group, row, column, amount);
//     });
//
// An exception must not escape into the event loop. A failure is reported
// by reportFailure. The work then counts as not done: the function returns
// false and the handler goes on or returns as it sees fit. Table objects
// report their own failures and need no wrapping.
template <class Work>
bool reportFailures(const QString &whatFailed, Work &&work)
{
    try {
        work();
        return true;
    } catch (const DbError &error) {
        reportFailure(whatFailed, error);
    } catch (const std::exception &error) {
        reportFailure(whatFailed, error);
    }
    return false;
}
