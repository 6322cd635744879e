#include "AdminRun.h"
#include "DemoSeeder.h"
#include "Statement.h"
#include "TestDatabase.h"
#include "Transaction.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace {

const QString Admin = QStringLiteral(HAULIX_ADMIN_PATH);

AdminRun admin(const QStringList &arguments)
{
    return AdminRun::of(Admin, arguments);
}

void seed(TestDatabase &db, int orders)
{
    DemoSeeder::Options options;
    options.orders = orders;
    DemoSeeder(db.connection(), options).seed();
}

QByteArray digest(const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QCryptographicHash::hash(file.readAll(), QCryptographicHash::Sha256);
}

QStringList filesIn(const QString &directory)
{
    return QDir(directory).entryList(QDir::Files | QDir::Hidden);
}

} // namespace

TEST(Backup, ARestoredBackupHoldsWhatWasCommittedWhileAnotherWorkstationWroteAFullDiskKeepsIt)
{
    TestDatabase db;
    seed(db, 40);
    const AdminRun before = admin({QStringLiteral("summary"), db.path()});
    ASSERT_EQ(before.exitCode, 0) << before.errors.toStdString();

    // Another workstation is in the middle of its work while the copy is made.
    Transaction transaction(db.connection());
    TransactionScope unfinished(transaction);
    Statement insert(db.connection());
    insert.add(QStringLiteral("INSERT INTO MIASTA (NAZWA) VALUES ('Nowe Miasto Lubawskie')"));
    insert.exec();

    QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("nocna.fbk"));
    const AdminRun backup = admin({QStringLiteral("backup"), db.path(), copy});
    ASSERT_EQ(backup.exitCode, 0) << backup.errors.toStdString();
    EXPECT_TRUE(backup.output.contains("Kopia bazy " + db.path() + " zapisana w " + copy))
        << backup.output.toStdString();
    EXPECT_EQ(QFileInfo(copy).permissions(), QFile::ReadOwner | QFile::WriteOwner
                                                 | QFile::ReadUser | QFile::WriteUser);
    const QByteArray older = digest(copy);

    const QString restored = dir.filePath(QStringLiteral("odtworzona.fdb"));
    const AdminRun restore = admin({QStringLiteral("restore"), copy, restored});
    ASSERT_EQ(restore.exitCode, 0) << restore.errors.toStdString();
    EXPECT_EQ(filesIn(dir.path()), QStringList({"nocna.fbk", "odtworzona.fdb"}));

    const AdminRun after = admin({QStringLiteral("summary"), restored});
    ASSERT_EQ(after.exitCode, 0) << after.errors.toStdString();
    EXPECT_EQ(summaryLines(after.output), summaryLines(before.output));
    EXPECT_GT(summaryLines(after.output).size(), 10);

    // A full disk leaves the older copy as it was and says what to do: the
    // disk fills after 64 KiB, every write beyond fails as on a full disk.
    const auto smallDisk = [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{64 * 1024, 64 * 1024};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    const AdminRun full = AdminRun::of(Admin, {QStringLiteral("backup"), db.path(), copy},
                                       QProcessEnvironment::systemEnvironment(), smallDisk);
    EXPECT_EQ(full.exitCode, 1);
    EXPECT_TRUE(full.errors.contains("Brak miejsca na dysku dla " + copy))
        << full.errors.toStdString();
    EXPECT_EQ(filesIn(dir.path()), QStringList({"nocna.fbk", "odtworzona.fdb"}));
    EXPECT_EQ(digest(copy), older);
}

TEST(Backup, RestoreNeverOverwritesADatabaseAndRefusesWhatIsNoBackup)
{
    TestDatabase db;
    seed(db, 5);
    QTemporaryDir dir;
    const QString copy = dir.filePath(QStringLiteral("kopia.fbk"));
    ASSERT_EQ(admin({QStringLiteral("backup"), db.path(), copy}).exitCode, 0);

    const QString other = dir.filePath(QStringLiteral("inna.fdb"));
    ASSERT_EQ(admin({QStringLiteral("create"), other}).exitCode, 0);
    const QByteArray untouched = digest(other);
    const AdminRun over = admin({QStringLiteral("restore"), copy, other});
    EXPECT_EQ(over.exitCode, 1);
    EXPECT_TRUE(over.errors.contains("Plik " + other + " już istnieje; baza nie zostanie nadpisana."))
        << over.errors.toStdString();
    EXPECT_EQ(digest(other), untouched);

    // Half a backup, as a copy stopped midway leaves it.
    const QString half = dir.filePath(QStringLiteral("polowa.fbk"));
    QFile whole(copy);
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    QFile cut(half);
    ASSERT_TRUE(cut.open(QIODevice::WriteOnly));
    cut.write(whole.read(whole.size() / 2));
    cut.close();
    const QString fromHalf = dir.filePath(QStringLiteral("z_polowy.fdb"));
    const AdminRun broken = admin({QStringLiteral("restore"), half, fromHalf});
    EXPECT_EQ(broken.exitCode, 1);
    EXPECT_TRUE(broken.errors.contains("Plik " + half + " nie jest kopią bazy zrobioną przez gbak"))
        << broken.errors.toStdString();
    EXPECT_EQ(filesIn(dir.path()), QStringList({"inna.fdb", "kopia.fbk", "polowa.fbk"}));

    const AdminRun missing = admin({QStringLiteral("backup"), dir.filePath("brak.fdb"), half});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(missing.errors.contains("plik nie istnieje")) << missing.errors.toStdString();
}
