#include "ServerSetup.h"

#include "Connection.h"
#include "DatabaseBackup.h"
#include "DbError.h"
#include "FirebirdFailure.h"
#include "Schema.h"
#include "Statement.h"
#include "Transaction.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSysInfo>
#include <QTemporaryDir>

namespace {

const QString WorkstationUser = QStringLiteral("HAULIX");

// What the workstation user may use, kind by kind: every object the
// schema (or a copied database) defines.
struct Grant
{
    const char *names;
    const char *privilege;
};

const Grant Grants[] = {
    {"SELECT TRIM(RDB$RELATION_NAME) FROM RDB$RELATIONS WHERE COALESCE(RDB$SYSTEM_FLAG,0)=0",
     "ALL ON \"%1\""},
    {"SELECT TRIM(RDB$GENERATOR_NAME) FROM RDB$GENERATORS WHERE COALESCE(RDB$SYSTEM_FLAG,0)=0",
     "USAGE ON GENERATOR \"%1\""},
    {"SELECT TRIM(RDB$PROCEDURE_NAME) FROM RDB$PROCEDURES WHERE COALESCE(RDB$SYSTEM_FLAG,0)=0",
     "EXECUTE ON PROCEDURE \"%1\""},
    {"SELECT TRIM(RDB$EXCEPTION_NAME) FROM RDB$EXCEPTIONS WHERE COALESCE(RDB$SYSTEM_FLAG,0)=0",
     "USAGE ON EXCEPTION \"%1\""},
};

QStringList namesOf(Connection &connection, const char *select)
{
    Statement st(connection);
    st.add(QString::fromLatin1(select));
    st.exec();
    QStringList names;
    for (; !st.atEnd(); st.next())
        names << st.string(0);
    return names;
}

QString quotedLiteral(QString text)
{
    return u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
}

} // namespace

QString ServerSetup::target() const
{
    return m_options.server + u':' + m_options.path;
}

QString ServerSetup::workstationAddress() const
{
    QString host = m_options.server;
    QString port = QStringLiteral("3050");
    const qsizetype slash = host.indexOf(u'/');
    if (slash >= 0) {
        port = host.mid(slash + 1);
        host = host.left(slash);
    }
    // The workstations reach this machine by its name, not by loopback.
    if (host == QLatin1String("localhost") || host.startsWith(QLatin1String("127.")))
        host = QSysInfo::machineHostName();
    return host + u'/' + port + u':' + m_options.path;
}

void ServerSetup::checkUserName(const FirebirdLogin &admin,
                                const FirebirdLogin &workstation) const
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z][A-Za-z0-9_]{0,30}$"));
    if (!plain.match(workstation.user).hasMatch()) {
        throw DbError(QStringLiteral("Nazwa użytkownika %1 w pliku %2 może mieć tylko litery "
                                     "łacińskie, cyfry i _ (do 31 znaków).")
                          .arg(workstation.user, m_options.loginFile));
    }
    if (workstation.user.compare(admin.user, Qt::CaseInsensitive) == 0
        || workstation.user.compare(QLatin1String("SYSDBA"), Qt::CaseInsensitive) == 0) {
        throw DbError(QStringLiteral("Stanowiska nie mogą pracować jako administrator serwera "
                                     "(%1): podaj w pliku %2 innego użytkownika.")
                          .arg(workstation.user, m_options.loginFile));
    }
}

void ServerSetup::copySource(const FirebirdLogin &admin) const
{
    const QTemporaryDir work;
    if (!work.isValid())
        throw DbError(QStringLiteral("Nie można utworzyć katalogu tymczasowego."));
    QString source = m_options.from;
    if (source.isEmpty()) {
        source = work.filePath(QStringLiteral("nowa.fdb"));
        Schema::createDatabase(source);
    }
    const QString copy = work.filePath(QStringLiteral("kopia.fbk"));
    DatabaseBackup(std::nullopt, QString()).backup(source, copy);
    DatabaseBackup(admin, m_options.adminFile).restore(copy, target());
}

void ServerSetup::admitWorkstations(const FirebirdLogin &admin,
                                    const FirebirdLogin &workstation) const
{
    Connection connection;
    connection.open(target(), admin.user, admin.password);
    Transaction transaction(connection);
    TransactionScope scope(transaction);
    const auto run = [&connection](const QString &sql) {
        Statement st(connection);
        st.add(sql);
        st.exec();
    };
    run(QStringLiteral("CREATE OR ALTER USER %1 PASSWORD %2 USING PLUGIN Srp")
            .arg(workstation.user, quotedLiteral(workstation.password)));
    for (const Grant &grant : Grants) {
        for (const QString &name : namesOf(connection, grant.names))
            run(QStringLiteral("GRANT ") + QString::fromLatin1(grant.privilege).arg(name)
                + QStringLiteral(" TO USER ") + workstation.user);
    }
    scope.commit();
}

void ServerSetup::dropQuietly(const FirebirdLogin &admin) const
{
    try {
        Connection::dropDatabase(target(), admin.user, admin.password);
    } catch (const DbError &) {
        // The server went away; the caller says what failed first.
    }
}

QStringList ServerSetup::run() const
{
    if (!QDir::isAbsolutePath(m_options.path)) {
        throw DbError(QStringLiteral("Podaj pełną ścieżkę bazy na serwerze, np. "
                                     "/var/lib/firebird/3.0/data/haulix.fdb."));
    }
    if (!m_options.from.isEmpty() && !QFileInfo::exists(m_options.from)) {
        throw DbError(QStringLiteral("Nie można otworzyć bazy danych %1: plik nie istnieje.")
                          .arg(m_options.from));
    }
    const FirebirdLogin admin = FirebirdLogin::read(m_options.adminFile);
    const bool newLogin = !QFileInfo::exists(m_options.loginFile);
    const FirebirdLogin workstation = newLogin ? FirebirdLogin::generated(WorkstationUser)
                                               : FirebirdLogin::read(m_options.loginFile);
    checkUserName(admin, workstation);
    const QString loginDirectory = QFileInfo(m_options.loginFile).absolutePath();
    if (newLogin && (!QDir().mkpath(loginDirectory) || !QFileInfo(loginDirectory).isWritable()))
        throw DbError(QStringLiteral("Nie można zapisać w katalogu %1.").arg(loginDirectory));

    copySource(admin);
    try {
        admitWorkstations(admin, workstation);
    } catch (const DbError &error) {
        dropQuietly(admin);
        const FirebirdFailure failure{target(), m_options.adminFile, admin.user, QString(),
                                      QString()};
        throw DbError(failure.explain(error.message()));
    }
    if (newLogin) {
        try {
            workstation.write(m_options.loginFile);
        } catch (const DbError &) {
            dropQuietly(admin);
            throw;
        }
    }

    const QString source = m_options.from.isEmpty()
        ? QStringLiteral("nowa baza ze schematu")
        : QStringLiteral("kopia bazy %1").arg(m_options.from);
    return {
        QStringLiteral("Baza na serwerze: %1 (%2).").arg(m_options.path, source),
        QStringLiteral("Użytkownik stanowisk: %1; hasło w pliku %2%3.")
            .arg(workstation.user, m_options.loginFile,
                 newLogin ? QStringLiteral(" (nowy plik)") : QString()),
        QStringLiteral("Na każdym stanowisku skopiuj ten plik do "
                       "~/.config/Kelvaro/haulix-login.conf (chmod 600) i uruchom:"),
        QStringLiteral("  haulix --db ") + workstationAddress(),
    };
}
