#include "ReportFailures.h"

#include "ErrorLog.h"
#include "MessageService.h"

namespace FailureText {

QString advice(DbError::Kind kind, const QString &logFile)
{
    switch (kind) {
    case DbError::Kind::Conflict:
        return QStringLiteral("Inne stanowisko zmieniło w tym samym czasie te same dane. "
                              "Spróbuj jeszcze raz.");
    case DbError::Kind::Locked:
        return QStringLiteral("Te dane są właśnie zmieniane na innym stanowisku. "
                              "Spróbuj jeszcze raz za chwilę.");
    case DbError::Kind::Unreachable:
        return QStringLiteral("Nie ma połączenia z bazą danych. Sprawdź połączenie z siecią "
                              "i serwerem bazy danych, potem spróbuj jeszcze raz.");
    case DbError::Kind::Other:
        break;
    }
    return QStringLiteral("Baza danych nie wykonała tej operacji. Szczegóły zapisano w pliku ")
        + logFile + QStringLiteral("; gdy błąd się powtarza, przekaż je administratorowi.");
}

QString unexpected()
{
    return QStringLiteral("Wystąpił nieoczekiwany błąd programu. Szczegóły zapisano w pliku ")
        + ErrorLog::SqlErrors + u'.';
}

QString message(const QString &whatFailed, const QString &advice)
{
    QString text = whatFailed.trimmed();
    if (!text.endsWith(u'.'))
        text += u'.';
    return text + u'\n' + advice;
}

} // namespace FailureText

namespace {

void report(const QString &whatFailed, const QString &reason, const QString &advice)
{
    QString what = whatFailed.trimmed();
    if (what.endsWith(u'.'))
        what.chop(1);
    ErrorLog::write(ErrorLog::SqlErrors, what + QStringLiteral(": ") + reason);
    Messages::error(FailureText::message(whatFailed, advice));
}

} // namespace

void reportFailure(const QString &whatFailed, const DbError &error)
{
    report(whatFailed, error.message(), FailureText::advice(error.kind()));
}

void reportFailure(const QString &whatFailed, const std::exception &error)
{
    report(whatFailed, QString::fromLocal8Bit(error.what()), FailureText::unexpected());
}
