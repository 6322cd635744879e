#include "SettingsFile.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class SettingsFileTest : public testing::Test
{
protected:
    QString path(const QString &name) const { return m_dir.filePath(name); }

    void touch(const QString &file) const
    {
        QFile f(file);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    }

    HostEnvironment host(const QStringList &arguments) const
    {
        return {arguments, path(QStringLiteral("bin")), path(QStringLiteral("etc"))};
    }

    QTemporaryDir m_dir;
};

} // namespace

TEST_F(SettingsFileTest, AnIniArgumentThenTheFileBesideTheProgramThenTheSystemOne)
{
    // Only a single upper-case .INI argument names the file.
    EXPECT_EQ(SettingsFile::fileName(host({QStringLiteral("/srv/FIRMA2.INI")})),
              QStringLiteral("/srv/FIRMA2.INI"));
    const QString system = path(QStringLiteral("etc/Haulix.ini"));
    EXPECT_EQ(SettingsFile::fileName(host({QStringLiteral("/srv/firma2.ini")})), system);
    EXPECT_EQ(SettingsFile::fileName(host({QStringLiteral("A.INI"), QStringLiteral("B.INI")})),
              system);
    EXPECT_EQ(SettingsFile::fileName(host({})), system);
    // A system directory with a separator gets no second one.
    EXPECT_EQ(SettingsFile::fileName({{}, path(QStringLiteral("bin")), QStringLiteral("/etc/")}),
              QStringLiteral("/etc/Haulix.ini"));

    ASSERT_TRUE(QDir(m_dir.path()).mkdir(QStringLiteral("bin")));
    const QString beside = path(QStringLiteral("bin/Haulix.ini"));
    touch(beside);
    EXPECT_EQ(SettingsFile::fileName(host({})), beside);
}

TEST_F(SettingsFileTest, AMissingOrEmptyAppPathIsWrittenFromTheProgramsDirectoryAStoredOneKept)
{
    const QString ini = path(QStringLiteral("Haulix.ini"));
    const auto stored = [&] {
        return QSettings(ini, QSettings::IniFormat).value(QStringLiteral("AppPath")).toString();
    };
    EXPECT_EQ(SettingsFile::appPath(ini, QStringLiteral("/opt/haulix")),
              QStringLiteral("/opt/haulix"));
    EXPECT_EQ(stored(), QStringLiteral("/opt/haulix/"));
    QFile file(ini);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("[General]"));

    QSettings(ini, QSettings::IniFormat).setValue(QStringLiteral("AppPath"), QString());
    EXPECT_EQ(SettingsFile::appPath(ini, QStringLiteral("/opt/a")), QStringLiteral("/opt/a"));
    QSettings(ini, QSettings::IniFormat).setValue(QStringLiteral("AppPath"), "D:\\Haulix\\");
    EXPECT_EQ(SettingsFile::appPath(ini, QStringLiteral("/opt/a")), QStringLiteral("D:\\Haulix"));

    // A drive root is stored as the drive alone.
    EXPECT_EQ(SettingsFile::storedAppPath(QStringLiteral("C:/")), QStringLiteral("C:"));
    EXPECT_EQ(SettingsFile::storedAppPath(QStringLiteral("C:\\")), QStringLiteral("C:"));
    EXPECT_EQ(SettingsFile::storedAppPath(QStringLiteral("C:/Haulix")), QStringLiteral("C:/Haulix/"));
    QFile::remove(ini);
    EXPECT_EQ(SettingsFile::appPath(ini, QStringLiteral("C:/")), QStringLiteral("C:"));
    EXPECT_EQ(stored(), QStringLiteral("C:"));
}
