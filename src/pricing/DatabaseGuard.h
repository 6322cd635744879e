#pragma once

#include "DbError.h"
#include "ErrorLog.h"
#include "MessageService.h"

#include <exception>

// Forms of this subsystem run their own statements inside handlers of
// buttons and lists, where an exception must not escape. A failure is
// logged, shown once ("Błąd") and the work counts as not done.
template <class Work>
bool runReported(const QString &what, Work &&work)
{
    QString message;
    try {
        work();
        return true;
    } catch (const DbError &error) {
        message = error.message();
    } catch (const std::exception &error) {
        message = QString::fromLocal8Bit(error.what());
    }
    ErrorLog::write(ErrorLog::SqlErrors, message);
    Messages::error(what + QStringLiteral(": ") + message);
    return false;
}
