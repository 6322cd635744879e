#include "AdminRun.h"
#include "Connection.h"
#include "DbError.h"
#include "DemoSeeder.h"
#include "PrivateFirebirdServer.h"
#include "Statement.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

const QString Admin = QStringLiteral(HAULIX_ADMIN_PATH);
const QString Print = QStringLiteral(HAULIX_PRINT_PATH);

// One server for the whole program: starting it is the slow part. Each
// test keeps its own databases and files.
class Server : public ::testing::Test
{
protected:
    static void SetUpTestSuite() { s_server = new PrivateFirebirdServer; }
    static void TearDownTestSuite()
    {
        delete s_server;
        s_server = nullptr;
    }

    void SetUp() override
    {
        // A machine where the test cannot start its server is a setup
        // fault, never a reason to skip.
        ASSERT_TRUE(s_server->failure().isEmpty())
            << "cannot start a private Firebird server: " << s_server->failure().toStdString();
    }

    PrivateFirebirdServer &server() { return *s_server; }
    QString onServer(const QString &path) { return server().address() + u':' + path; }

    QProcessEnvironment workstation() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("HAULIX_LOGIN"), loginFile());
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        return environment;
    }

    // haulix-admin as a workstation does, or with the administrator's login.
    AdminRun admin(const QStringList &arguments, bool asWorkstation = true)
    {
        return asWorkstation ? AdminRun::of(Admin, arguments, workstation())
                             : AdminRun::of(Admin, arguments + QStringList{
                                   QStringLiteral("--login"), server().adminLoginFile()});
    }

    QString loginFile() const { return m_files.filePath(QStringLiteral("haulix-login.conf")); }
    QString serverFile(const QString &name) const { return m_files.filePath(name); }

    AdminRun setup(const QString &path, QStringList more = {}, QString address = {},
                   QString admin = {})
    {
        QStringList arguments{QStringLiteral("server-setup"), path, QStringLiteral("--server"),
                              address.isEmpty() ? server().address() : address,
                              QStringLiteral("--admin"),
                              admin.isEmpty() ? server().adminLoginFile() : admin,
                              QStringLiteral("--login"), loginFile()};
        return AdminRun::of(Admin, arguments + more);
    }

    QTemporaryDir m_files;

private:
    static PrivateFirebirdServer *s_server;
};

PrivateFirebirdServer *Server::s_server = nullptr;

void seed(TestDatabase &db)
{
    DemoSeeder::Options options;
    options.orders = 30;
    DemoSeeder(db.connection(), options).seed();
}

void writeFile(const QString &path, const QByteArray &text, QFile::Permissions permissions)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.setPermissions(permissions);
}

} // namespace

TEST_F(Server, TwoWorkstationsShareTheCopiedDatabaseAsTheirOwnUser)
{
    TestDatabase source;
    seed(source);
    const AdminRun expected = AdminRun::of(Admin, {QStringLiteral("summary"), source.path()});

    const QString path = serverFile(QStringLiteral("haulix.fdb"));
    const AdminRun run = setup(path, {QStringLiteral("--from"), source.path()});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.output.contains(QStringLiteral("/%1:%2\n").arg(server().port()).arg(path)))
        << run.output.toStdString();
    EXPECT_TRUE(run.output.contains("Użytkownik stanowisk: HAULIX; hasło w pliku " + loginFile()
                                    + " (nowy plik)."));
    EXPECT_EQ(QFileInfo(loginFile()).permissions(),
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser);

    // A workstation program, logged in with the file it was given.
    const AdminRun seen = admin({QStringLiteral("summary"), onServer(path)});
    ASSERT_EQ(seen.exitCode, 0) << seen.errors.toStdString();
    EXPECT_EQ(summaryLines(seen.output), summaryLines(expected.output));

    const QString invoice = source.scalar(QStringLiteral("SELECT MIN(ID_FAKTURY) FROM FAKTURY"));
    const QString pdf = serverFile(QStringLiteral("faktura.pdf"));
    const AdminRun printed = AdminRun::of(
        Print, {QStringLiteral("--db"), onServer(path), QStringLiteral("invoice"), invoice, pdf},
        workstation());
    EXPECT_EQ(printed.exitCode, 0) << printed.errors.toStdString();
    EXPECT_TRUE(QFileInfo(pdf).size() > 1000);

    // Two workstations at once: what one commits (keys from the
    // generators included) the other sees; server management is not theirs.
    qputenv("HAULIX_LOGIN", QFile::encodeName(loginFile()));
    Connection first;
    Connection second;
    first.open(onServer(path));
    second.open(onServer(path));
    {
        Transaction transaction(first);
        TransactionScope scope(transaction);
        Statement insert(first);
        insert.add(QStringLiteral("INSERT INTO MIASTA (NAZWA) VALUES ('Nowe Miasto Lubawskie')"));
        insert.exec();
        scope.commit();
    }
    Statement count(second);
    count.add(QStringLiteral("SELECT COUNT(*) FROM MIASTA WHERE NAZWA='Nowe Miasto Lubawskie'"));
    count.exec();
    EXPECT_EQ(count.integer(0), 1);
    // The engine refuses a new user when the work is committed.
    Transaction managing(second);
    const auto addUser = [&] {
        TransactionScope scope(managing);
        Statement manage(second);
        manage.add(QStringLiteral("CREATE USER INTRUZ PASSWORD 'x1y2z3'"));
        manage.exec();
        scope.commit();
    };
    EXPECT_THROW(addUser(), DbError);
    qunsetenv("HAULIX_LOGIN");
}

TEST_F(Server, BackupGoesThroughTheServerWithTheAdministratorsLoginOnly)
{
    const QString path = serverFile(QStringLiteral("kopiowana.fdb"));
    ASSERT_EQ(setup(path).exitCode, 0);
    const QString copy = serverFile(QStringLiteral("kopia.fbk"));

    const AdminRun asWorkstation = admin({QStringLiteral("backup"), onServer(path), copy});
    EXPECT_EQ(asWorkstation.exitCode, 1);
    EXPECT_TRUE(asWorkstation.errors.contains("Użytkownik HAULIX nie może zrobić kopii tej bazy"))
        << asWorkstation.errors.toStdString();
    EXPECT_FALSE(QFileInfo::exists(copy));

    const AdminRun asAdmin = admin({QStringLiteral("backup"), onServer(path), copy}, false);
    ASSERT_EQ(asAdmin.exitCode, 0) << asAdmin.errors.toStdString();
    const QString restored = serverFile(QStringLiteral("odtworzona.fdb"));
    ASSERT_EQ(AdminRun::of(Admin, {QStringLiteral("restore"), copy, restored}).exitCode, 0);
    const AdminRun there = AdminRun::of(Admin, {QStringLiteral("summary"), restored});
    EXPECT_EQ(there.exitCode, 0) << there.errors.toStdString();

    // Restored onto the server, next to the first: never over it.
    const AdminRun over = admin({QStringLiteral("restore"), copy, onServer(path)}, false);
    EXPECT_EQ(over.exitCode, 1);
    EXPECT_TRUE(over.errors.contains("już istnieje; nie zostanie nadpisana"))
        << over.errors.toStdString();
    EXPECT_EQ(admin({QStringLiteral("summary"), onServer(path)}).exitCode, 0);
}

TEST_F(Server, EverySetupMistakeIsOneSentenceAndLeavesNothingBehind)
{
    const QString path = serverFile(QStringLiteral("nowa.fdb"));

    const int closed = PrivateFirebirdServer::freePort();
    const AdminRun unreachable = setup(path, {}, QStringLiteral("127.0.0.1/%1").arg(closed));
    EXPECT_EQ(unreachable.exitCode, 1);
    EXPECT_TRUE(unreachable.errors.contains(
        QStringLiteral("Serwer Firebird 127.0.0.1/%1 nie odpowiada").arg(closed)))
        << unreachable.errors.toStdString();

    const QString wrongAdmin = serverFile(QStringLiteral("zly.password"));
    writeFile(wrongAdmin, "ISC_USER=SYSDBA\nISC_PASSWORD=\"nie-to\"\n",
              QFile::ReadOwner | QFile::WriteOwner);
    const AdminRun refused = setup(path, {}, {}, wrongAdmin);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.errors.contains("Serwer Firebird nie przyjął użytkownika SYSDBA z hasłem "
                                        "z pliku " + wrongAdmin))
        << refused.errors.toStdString();

    const AdminRun noPlace = setup(QStringLiteral("/nie-ma-takiego-katalogu/haulix.fdb"));
    EXPECT_EQ(noPlace.exitCode, 1);
    EXPECT_TRUE(noPlace.errors.contains("Serwer Firebird nie ma dostępu do "
                                        "/nie-ma-takiego-katalogu/haulix.fdb"))
        << noPlace.errors.toStdString();

    EXPECT_FALSE(QFileInfo::exists(path));
    EXPECT_FALSE(QFileInfo::exists(loginFile()));

    writeFile(loginFile(), "ISC_USER=BIURO\nISC_PASSWORD=\"Haslo2026\"\n",
              QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    const AdminRun exposed = setup(path);
    EXPECT_EQ(exposed.exitCode, 1);
    EXPECT_TRUE(exposed.errors.contains("Plik z hasłem " + loginFile()
                                        + " mogą czytać inni użytkownicy; ustaw go tylko dla "
                                          "właściciela: chmod 600 " + loginFile()))
        << exposed.errors.toStdString();
    EXPECT_FALSE(QFileInfo::exists(path));

    // The administrator's own login file for the workstations' user.
    QFile::setPermissions(loginFile(), QFile::ReadOwner | QFile::WriteOwner);
    const AdminRun chosen = setup(path);
    ASSERT_EQ(chosen.exitCode, 0) << chosen.errors.toStdString();
    EXPECT_TRUE(chosen.output.contains("Użytkownik stanowisk: BIURO; hasło w pliku " + loginFile()
                                       + "."));
    const AdminRun again = setup(path);
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_TRUE(again.errors.contains("Baza " + onServer(path)
                                      + " już istnieje; nie zostanie nadpisana."))
        << again.errors.toStdString();
    EXPECT_EQ(admin({QStringLiteral("summary"), onServer(path)}).exitCode, 0);
}
