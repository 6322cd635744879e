#include "FirebirdLogin.h"

#include "DbError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QStandardPaths>

namespace {

const QString UserKey = QStringLiteral("ISC_USER");
const QString PasswordKey = QStringLiteral("ISC_PASSWORD");

// The shell's quoting as far as such files use it: one pair of quotes
// around the whole value.
QString unquoted(const QString &value)
{
    if (value.size() >= 2 && (value.front() == u'"' || value.front() == u'\'')
        && value.back() == value.front())
        return value.mid(1, value.size() - 2);
    return value;
}

bool othersMayRead(const QFileInfo &file)
{
    return file.permissions()
        & (QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther);
}

} // namespace

FirebirdLogin FirebirdLogin::read(const QString &path)
{
    const QFileInfo info(path);
    if (!info.exists())
        throw DbError(QStringLiteral("Brak pliku z hasłem do serwera Firebird: %1.").arg(path));
    if (othersMayRead(info)) {
        throw DbError(QStringLiteral("Plik z hasłem %1 mogą czytać inni użytkownicy; "
                                     "ustaw go tylko dla właściciela: chmod 600 %1")
                          .arg(path));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        throw DbError(QStringLiteral("Nie można odczytać pliku z hasłem %1: uruchom polecenie "
                                     "jako jego właściciel (np. przez sudo).")
                          .arg(path));
    }
    FirebirdLogin login;
    for (const QString &raw : QString::fromUtf8(file.readAll()).split(u'\n')) {
        const QString line = raw.trimmed();
        const qsizetype equals = line.indexOf(u'=');
        if (line.startsWith(u'#') || equals < 0)
            continue;
        const QString key = line.left(equals).trimmed();
        const QString value = unquoted(line.mid(equals + 1).trimmed());
        if (key == UserKey)
            login.user = value;
        else if (key == PasswordKey)
            login.password = value;
    }
    if (login.user.isEmpty() || login.password.isEmpty()) {
        throw DbError(QStringLiteral("W pliku %1 brakuje nazwy użytkownika albo hasła "
                                     "(wiersze ISC_USER=... i ISC_PASSWORD=...).")
                          .arg(path));
    }
    return login;
}

void FirebirdLogin::write(const QString &path) const
{
    const QString directory = QFileInfo(path).absolutePath();
    QSaveFile file(path);
    // The permissions are set before a byte of the password is written.
    if (!QDir().mkpath(directory) || !file.open(QIODevice::WriteOnly)
        || !file.setPermissions(QFile::ReadOwner | QFile::WriteOwner)) {
        throw DbError(QStringLiteral("Nie można zapisać pliku z hasłem %1.").arg(path));
    }
    const QString text = QStringLiteral("# Login stanowisk do bazy Haulix na serwerze Firebird.\n"
                                        "%1=%2\n%3=\"%4\"\n")
                             .arg(UserKey, user, PasswordKey, password);
    file.write(text.toUtf8());
    if (!file.commit())
        throw DbError(QStringLiteral("Nie można zapisać pliku z hasłem %1.").arg(path));
}

FirebirdLogin FirebirdLogin::generated(const QString &user)
{
    // Letters and digits only: the password goes into quotes in the file
    // and in a statement.
    static const QString alphabet
        = QStringLiteral("ABCDEFGHJKLMNPQRSTUVWXYZabcdefghijkmnopqrstuvwxyz23456789");
    QString password;
    for (int i = 0; i < 24; ++i)
        password += alphabet.at(QRandomGenerator::system()->bounded(int(alphabet.size())));
    return {user, password};
}

QString FirebirdLogin::workstationFile()
{
    const QString chosen = qEnvironmentVariable("HAULIX_LOGIN");
    if (!chosen.isEmpty())
        return chosen;
    return QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
        + QStringLiteral("/Kelvaro/haulix-login.conf");
}
