#include "Connection.h"

#include "DbError.h"
#include "FirebirdEnvironment.h"
#include "FirebirdLogin.h"
#include "FirebirdStatus.h"
#include "StatementCache.h"

#include <QAtomicInteger>
#include <QFileInfo>
#include <QSqlError>


namespace {

QString nextConnectionName()
{
    static QAtomicInteger<quint64> counter;
    return QStringLiteral("haulix-%1").arg(++counter);
}

void addParameter(QByteArray &dpb, char item, const QByteArray &value)
{
    dpb.append(item);
    dpb.append(char(value.size()));
    dpb.append(value);
}

QByteArray loginParameters(const QString &user, const QString &password)
{
    QByteArray dpb;
    dpb.append(char(isc_dpb_version1));
    addParameter(dpb, char(isc_dpb_user_name), user.toUtf8());
    addParameter(dpb, char(isc_dpb_password), password.toUtf8());
    return dpb;
}

} // namespace

Connection::Connection() : m_name(nextConnectionName()) {}

Connection::~Connection()
{
    close();
    QSqlDatabase::removeDatabase(m_name);
}

bool Connection::isServerTarget(const QString &target)
{
    // "C:\dir\file.fdb" is a local path with a drive letter, not a host.
    const qsizetype colon = target.indexOf(QLatin1Char(':'));
    return colon > 1;
}

void Connection::open(const QString &target, const QString &user, const QString &password)
{
    FirebirdEnvironment::prepare();
    close();
    QSqlDatabase db = QSqlDatabase::contains(m_name) ? QSqlDatabase::database(m_name, false)
                                                     : QSqlDatabase::addDatabase(QStringLiteral("QIBASE"), m_name);
    if (!db.isValid())
        throw DbError(QStringLiteral("Brak sterownika bazy danych QIBASE (pakiet libqt6sql6-ibase)."));
    db.setDatabaseName(target);
    if (!user.isEmpty()) {
        db.setUserName(user);
        db.setPassword(password);
    } else if (isServerTarget(target)) {
        const FirebirdLogin login = FirebirdLogin::read(FirebirdLogin::workstationFile());
        db.setUserName(login.user);
        db.setPassword(login.password);
    } else {
        db.setUserName(QStringLiteral("SYSDBA"));
        db.setPassword(QStringLiteral("masterkey"));
    }
    db.setConnectOptions(QStringLiteral("ISC_DPB_LC_CTYPE=UTF8"));
    if (!isServerTarget(target) && !QFileInfo::exists(target))
        throw DbError(QStringLiteral("Nie można otworzyć bazy danych %1: plik nie istnieje.").arg(target));
    if (!db.open()) {
        throw DbError::fromSql(QStringLiteral("Nie można otworzyć bazy danych %1").arg(target),
                               db.lastError());
    }
    m_target = target;
}

void Connection::transactionChanged(bool running)
{
    m_inTransaction = running;
    ++m_transactionEpoch;
}

StatementCache &Connection::statements()
{
    if (!m_statements)
        m_statements = std::make_unique<StatementCache>(*this);
    return *m_statements;
}

void Connection::close()
{
    // Kept statements go before the database they were prepared on.
    m_statements.reset();
    m_inTransaction = false;
    ++m_transactionEpoch;
    if (QSqlDatabase::contains(m_name)) {
        QSqlDatabase db = QSqlDatabase::database(m_name, false);
        if (db.isOpen())
            db.close();
    }
    m_target.clear();
}

bool Connection::isOpen() const
{
    return QSqlDatabase::contains(m_name) && QSqlDatabase::database(m_name, false).isOpen();
}

QSqlDatabase Connection::database() const
{
    return QSqlDatabase::database(m_name, false);
}

void Connection::createDatabase(const QString &target, const QString &user, const QString &password)
{
    FirebirdEnvironment::prepare();
    if (!isServerTarget(target)) {
        const QFileInfo file(target);
        if (file.exists())
            throw DbError(QStringLiteral("Plik %1 już istnieje; baza nie zostanie nadpisana.").arg(target));
        if (!QFileInfo(file.absolutePath()).isWritable())
            throw DbError(QStringLiteral("Nie można zapisać w katalogu %1.").arg(file.absolutePath()));
    }
    QString quoted = target;
    quoted.replace(QLatin1Char('\''), QStringLiteral("''"));
    const QByteArray statement =
        QStringLiteral("CREATE DATABASE '%1' USER '%2' PASSWORD '%3' PAGE_SIZE 16384 "
                       "DEFAULT CHARACTER SET UTF8")
            .arg(quoted, user, password)
            .toUtf8();

    ISC_STATUS_ARRAY status = {};
    isc_db_handle db = 0;
    isc_tr_handle tr = 0;
    if (isc_dsql_execute_immediate(status, &db, &tr, 0, statement.constData(), 3, nullptr)) {
        throw DbError(QStringLiteral("Nie można utworzyć bazy danych %1: %2")
                          .arg(target, firebirdStatusText(status)));
    }
    isc_detach_database(status, &db);
}

void Connection::setForcedWrites(const QString &target, bool on, const QString &user,
                                 const QString &password)
{
    FirebirdEnvironment::prepare();
    QByteArray dpb = loginParameters(user, password);
    addParameter(dpb, char(isc_dpb_force_write), QByteArray(1, on ? 1 : 0));

    const QByteArray path = target.toUtf8();
    ISC_STATUS_ARRAY status = {};
    isc_db_handle db = 0;
    if (isc_attach_database(status, 0, path.constData(), &db, static_cast<short>(dpb.size()),
                            dpb.constData())) {
        throw DbError(QStringLiteral("Nie można zmienić trybu zapisu bazy danych %1: %2")
                          .arg(target, firebirdStatusText(status)));
    }
    isc_detach_database(status, &db);
}

void Connection::dropDatabase(const QString &target, const QString &user,
                              const QString &password)
{
    FirebirdEnvironment::prepare();
    const QByteArray dpb = loginParameters(user, password);
    const QByteArray path = target.toUtf8();
    ISC_STATUS_ARRAY status = {};
    isc_db_handle db = 0;
    if (isc_attach_database(status, 0, path.constData(), &db, static_cast<short>(dpb.size()),
                            dpb.constData())
        || isc_drop_database(status, &db)) {
        if (db)
            isc_detach_database(status, &db);
        throw DbError(QStringLiteral("Nie można usunąć bazy danych %1: %2")
                          .arg(target, firebirdStatusText(status)));
    }
}
