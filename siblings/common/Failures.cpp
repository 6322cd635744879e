#include "Failures.h"

#include "ErrorLog.h"
#include "MessageService.h"

void Failures::report(const QString &what, const QString &reason)
{
    ErrorLog::write(ErrorLog::SqlErrors, reason);
    Messages::error(what
                    + QStringLiteral("\nSpróbuj jeszcze raz; gdy to się powtarza, sprawdź "
                                     "połączenie z bazą danych. Szczegóły zapisano w pliku ")
                    + ErrorLog::SqlErrors + u'.');
}
