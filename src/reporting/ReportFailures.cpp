#include "ReportFailures.h"

#include "ErrorLog.h"
#include "MessageService.h"

void reportFailure(const QString &whatFailed, const QString &reason)
{
    ErrorLog::write(ErrorLog::SqlErrors, reason);
    Messages::error(whatFailed + QStringLiteral(": ") + reason);
}
