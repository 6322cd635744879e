#include "AdminRun.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString packageFrom(const QString &directory)
{
    const QStringList debs = QDir(directory).entryList({QStringLiteral("*.deb")}, QDir::Files);
    return debs.size() == 1 ? QDir(directory).filePath(debs.first()) : QString();
}

QString textOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

// The package made from this build tree, unpacked into a directory of its
// own as dpkg would install it, without the build tree's help.
TEST(Package, InstalledFromTheDebItMakesADatabaseAndStartsFromTheDesktopMenu)
{
    QTemporaryDir work;
    const AdminRun made = AdminRun::of(
        QStringLiteral(HAULIX_CPACK),
        {QStringLiteral("-G"), QStringLiteral("DEB"), QStringLiteral("--config"),
         QStringLiteral(HAULIX_CPACK_CONFIG), QStringLiteral("-B"), work.path()});
    ASSERT_EQ(made.exitCode, 0) << made.output.toStdString() << made.errors.toStdString();
    const QString deb = packageFrom(work.path());
    ASSERT_EQ(QFileInfo(deb).fileName(), QStringLiteral("haulix_" HAULIX_VERSION "_amd64.deb"))
        << made.output.toStdString();

    const AdminRun fields = AdminRun::of(QStringLiteral("dpkg-deb"),
                                         {QStringLiteral("-f"), deb, QStringLiteral("Depends")});
    for (const char *needed : {"libqt6widgets6", "libqt6sql6 ", "libqt6sql6-ibase",
                               "qt6-qpa-plugins", "libfbclient2", "firebird3.0-server-core",
                               "firebird3.0-utils", "fonts-wine", "fonts-dejavu-core",
                               "libxml2"})
        EXPECT_TRUE(fields.output.contains(QLatin1String(needed))) << needed << " in "
                                                                  << fields.output.toStdString();

    const QString root = work.filePath(QStringLiteral("root"));
    ASSERT_EQ(AdminRun::of(QStringLiteral("dpkg"), {QStringLiteral("-x"), deb, root}).exitCode, 0);
    const QDir usr(root + QStringLiteral("/usr"));
    for (const char *file :
         {"bin/haulix", "bin/haulix-admin", "bin/haulix-print", "bin/haulix-pricing",
          "lib/haulix/libhaulix_db.so", "lib/haulix/Library/IncomingOrders.so",
          "lib/haulix/Library/Contractors.so", "lib/haulix/Library/Scheduler.so",
          "share/haulix/schema.sql", "share/haulix/ksef/schemat_FA3.xsd",
          "share/haulix/ksef/README.md", "share/icons/hicolor/scalable/apps/haulix.svg"})
        EXPECT_TRUE(QFileInfo(usr.filePath(QLatin1String(file))).isFile()) << file;

    const QString entry = textOf(usr.filePath(QStringLiteral("share/applications/haulix.desktop")));
    for (const char *line : {"Name=Haulix Zlecenia\n", "Exec=haulix\n", "Icon=haulix\n",
                             "Categories=Office;\n"})
        EXPECT_TRUE(entry.contains(QString::fromUtf8(line))) << line;

    // Every library the programs and the module need is found in the
    // package or on the system, none in the build tree.
    for (const char *binary : {"lib/haulix/haulix", "lib/haulix/Library/IncomingOrders.so"}) {
        const AdminRun linked
            = AdminRun::of(QStringLiteral("ldd"), {usr.filePath(QLatin1String(binary))});
        EXPECT_FALSE(linked.output.contains(QLatin1String("not found"))) << linked.output.toStdString();
        EXPECT_TRUE(linked.output.contains("libhaulix_db.so => " + usr.path()))
            << linked.output.toStdString();
    }

    const QString database = work.filePath(QStringLiteral("biuro.fdb"));
    const QString admin = usr.filePath(QStringLiteral("bin/haulix-admin"));
    const AdminRun created = AdminRun::of(admin, {QStringLiteral("create"), database});
    ASSERT_EQ(created.exitCode, 0) << created.errors.toStdString();
    const AdminRun seeded = AdminRun::of(admin, {QStringLiteral("seed"), database,
                                                 QStringLiteral("--orders"), QStringLiteral("5")});
    ASSERT_EQ(seeded.exitCode, 0) << seeded.errors.toStdString();
    const AdminRun summary = AdminRun::of(admin, {QStringLiteral("summary"), database});
    EXPECT_EQ(summary.exitCode, 0) << summary.errors.toStdString();
    EXPECT_TRUE(summary.output.contains(QStringLiteral("Firma: PHU Trans-Wisła")))
        << summary.output.toStdString();
}
