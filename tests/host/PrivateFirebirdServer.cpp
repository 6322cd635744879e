#include "PrivateFirebirdServer.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QStandardPaths>
#include <QThread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

const QString Password = QStringLiteral("Tk7pQ2xs");

sockaddr_in loopback(int port)
{
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

bool listening(int port)
{
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in address = loopback(port);
    const bool connected
        = ::connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    close(fd);
    return connected;
}

bool writeFile(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size()
        && file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

int PrivateFirebirdServer::freePort()
{
    const int fd = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    bind(fd, reinterpret_cast<sockaddr *>(&address), sizeof address);
    getsockname(fd, reinterpret_cast<sockaddr *>(&address), &size);
    close(fd);
    return ntohs(address.sin_port);
}

PrivateFirebirdServer::PrivateFirebirdServer() : m_port(freePort())
{
    const QString config = QStringLiteral("RemoteServicePort = %1\n"
                                          "RemoteBindAddress = 127.0.0.1\n"
                                          "SecurityDatabase = %2/security3.fdb\n"
                                          "ServerMode = SuperClassic\n"
                                          "AuthServer = Srp\n"
                                          "UserManager = Srp\n"
                                          "WireCrypt = Enabled\n")
                               .arg(m_port)
                               .arg(m_dir.path());
    if (!m_dir.isValid() || !writeFile(m_dir.filePath("firebird.conf"), config.toUtf8())) {
        m_failure = QStringLiteral("cannot write the server's configuration");
        return;
    }
    const QByteArray login = "ISC_USER=SYSDBA\nISC_PASSWORD=\"" + Password.toUtf8() + "\"\n";
    if (!writeFile(adminLoginFile(), login)) {
        m_failure = QStringLiteral("cannot write the SYSDBA login file");
        return;
    }
    if (createSecurityDatabase())
        start();
}

PrivateFirebirdServer::~PrivateFirebirdServer()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    m_server.terminate();
    if (!m_server.waitForFinished(10000)) {
        m_server.kill();
        m_server.waitForFinished(5000);
    }
}

QString PrivateFirebirdServer::address() const
{
    return QStringLiteral("127.0.0.1/%1").arg(m_port);
}

QString PrivateFirebirdServer::adminLoginFile() const
{
    return m_dir.filePath(QStringLiteral("SYSDBA.password"));
}

bool PrivateFirebirdServer::createSecurityDatabase()
{
    const QString isql = QStandardPaths::findExecutable(QStringLiteral("isql-fb"));
    if (isql.isEmpty()) {
        m_failure = QStringLiteral("isql-fb is missing (package firebird3.0-utils)");
        return false;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("FIREBIRD"), m_dir.path());
    environment.remove(QStringLiteral("ISC_USER"));
    environment.remove(QStringLiteral("ISC_PASSWORD"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(isql, {QStringLiteral("-q")});
    process.write(QStringLiteral("CREATE DATABASE '%1/security3.fdb' USER 'SYSDBA';\n"
                                 "CREATE USER SYSDBA PASSWORD '%2' USING PLUGIN Srp;\n"
                                 "COMMIT;\n")
                      .arg(m_dir.path(), Password)
                      .toUtf8());
    process.closeWriteChannel();
    process.waitForFinished(60000);
    const QString said = QString::fromLocal8Bit(process.readAll());
    if (process.exitCode() != 0 || !said.trimmed().isEmpty()) {
        m_failure = QStringLiteral("cannot create the security database: ") + said;
        return false;
    }
    return true;
}

bool PrivateFirebirdServer::start()
{
    const QString program = QStringLiteral("/usr/sbin/firebird");
    if (!QFile::exists(program)) {
        m_failure = program + QStringLiteral(" is missing (package firebird3.0-server)");
        return false;
    }
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("FIREBIRD"), m_dir.path());
    environment.insert(QStringLiteral("FIREBIRD_LOCK"), m_dir.filePath(QStringLiteral("lock")));
    m_server.setProcessEnvironment(environment);
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    m_server.start(program, {});
    const QDeadlineTimer deadline(15000);
    while (!deadline.hasExpired()) {
        if (m_server.state() == QProcess::NotRunning) {
            m_failure = QStringLiteral("the server ended at once: ")
                + QString::fromLocal8Bit(m_server.readAll());
            return false;
        }
        if (listening(m_port))
            return true;
        QThread::msleep(50);
    }
    m_failure = QStringLiteral("the server does not listen on port %1").arg(m_port);
    return false;
}
