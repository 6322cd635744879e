#include "FirebirdFailure.h"

#include "Connection.h"

#include <QStringList>

namespace {

bool saysAny(const QString &text, const QStringList &phrases)
{
    for (const QString &phrase : phrases) {
        if (text.contains(phrase, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

QString serverOf(const QString &target)
{
    return target.left(target.indexOf(u':'));
}

// gbak's last complaint, without its name before every line.
QString lastWords(const QString &engineText)
{
    QStringList lines;
    for (QString line : engineText.split(u'\n', Qt::SkipEmptyParts)) {
        line = line.trimmed();
        if (line.startsWith(QStringLiteral("gbak:")))
            line = line.mid(5).trimmed();
        if (line.startsWith(QStringLiteral("ERROR:")))
            line = line.mid(6).trimmed();
        if (!line.isEmpty() && !line.startsWith(QStringLiteral("Exiting before completion")))
            lines << line;
    }
    return lines.join(QStringLiteral(" - "));
}

} // namespace

QString FirebirdFailure::alreadyThere() const
{
    return QStringLiteral("Baza %1 już istnieje; nie zostanie nadpisana. Podaj inną ścieżkę.")
        .arg(target);
}

bool FirebirdFailure::isFileAccess(const QString &engineText)
{
    return saysAny(engineText, {QStringLiteral("I/O error during \"open")});
}

QString FirebirdFailure::explain(const QString &engineText) const
{
    const bool server = Connection::isServerTarget(target);
    if (saysAny(engineText, {QStringLiteral("Unable to complete network request"),
                             QStringLiteral("Failed to establish a connection")})) {
        return QStringLiteral("Serwer Firebird %1 nie odpowiada: sprawdź, czy działa "
                              "(systemctl status firebird3.0), czy nazwa i port są dobre "
                              "i czy zapora przepuszcza połączenie.")
            .arg(serverOf(target));
    }
    if (saysAny(engineText, {QStringLiteral("user name and password are not defined")})) {
        return QStringLiteral("Serwer Firebird nie przyjął użytkownika %1 z hasłem z pliku %2: "
                              "popraw ISC_USER i ISC_PASSWORD w tym pliku.")
            .arg(user, loginFile);
    }
    if (saysAny(engineText, {QStringLiteral("must be either SYSDBA or owner")})) {
        return QStringLiteral("Użytkownik %1 nie może zrobić kopii tej bazy: kopię robi "
                              "właściciel bazy albo SYSDBA "
                              "(--login /etc/firebird/3.0/SYSDBA.password).")
            .arg(user);
    }
    if (saysAny(engineText, {QStringLiteral("already exists")}))
        return alreadyThere();
    if (saysAny(engineText, {QStringLiteral("No space left on device"),
                             QStringLiteral("File too large"),
                             QStringLiteral("Disk quota exceeded")})) {
        return QStringLiteral("Brak miejsca na dysku dla %1: nic nie zostało zapisane; zwolnij "
                              "miejsce albo wybierz inny katalog i powtórz.")
            .arg(written.isEmpty() ? target : written);
    }
    if (isFileAccess(engineText)) {
        if (server)
            return QStringLiteral("Serwer Firebird nie ma dostępu do %1: katalog nie istnieje "
                                  "albo serwer (użytkownik firebird) nie może w nim czytać "
                                  "i pisać. Wybierz katalog serwera, np. "
                                  "/var/lib/firebird/3.0/data/.")
                .arg(target.mid(target.indexOf(u':') + 1));
        return QStringLiteral("Nie można otworzyć ani utworzyć bazy %1: sprawdź, czy katalog "
                              "istnieje i czy wolno w nim pisać.")
            .arg(target);
    }
    if (saysAny(engineText, {QStringLiteral("not a valid database")}))
        return QStringLiteral("Plik %1 nie jest bazą danych Firebird.").arg(target);
    if (saysAny(engineText, {QStringLiteral("expected backup"),
                             QStringLiteral("Backup incomplete"),
                             QStringLiteral("File size is less than expected")})) {
        return QStringLiteral("Plik %1 nie jest kopią bazy zrobioną przez gbak albo jest "
                              "niepełny lub uszkodzony: użyj innej kopii.")
            .arg(backupFile);
    }
    return QStringLiteral("Polecenie nie powiodło się (%1): %2")
        .arg(target, lastWords(engineText));
}
