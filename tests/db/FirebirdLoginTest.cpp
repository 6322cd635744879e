#include "DbError.h"
#include "FirebirdLogin.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

QString fileWith(const QTemporaryDir &dir, const QByteArray &text, QFile::Permissions permissions)
{
    const QString path = dir.filePath(QStringLiteral("login.conf"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.setPermissions(permissions);
    return path;
}

const QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner;

std::string refusal(const QString &path)
{
    try {
        FirebirdLogin::read(path);
    } catch (const DbError &error) {
        return error.message().toStdString();
    }
    return "read without a word";
}

} // namespace

TEST(FirebirdLogin, ReadsTheFileTheServerPackageWrites)
{
    QTemporaryDir dir;
    const QString path = fileWith(dir,
                                  "# Password for firebird SYSDBA user\n#\n"
                                  "ISC_USER=sysdba\nISC_PASSWORD=\"01304474\"\n",
                                  OwnerOnly);
    const FirebirdLogin login = FirebirdLogin::read(path);
    EXPECT_EQ(login.user, QStringLiteral("sysdba"));
    EXPECT_EQ(login.password, QStringLiteral("01304474"));

    const QString plain = fileWith(dir, "  ISC_PASSWORD = 'a b=c'\nISC_USER = BIURO  \n", OwnerOnly);
    EXPECT_EQ(FirebirdLogin::read(plain).password, QStringLiteral("a b=c"));
    EXPECT_EQ(FirebirdLogin::read(plain).user, QStringLiteral("BIURO"));
}

TEST(FirebirdLogin, RefusesAFileOthersMayReadAMissingOneAndOneWithoutAPassword)
{
    QTemporaryDir dir;
    const QString shared = fileWith(dir, "ISC_USER=A\nISC_PASSWORD=b\n",
                                    OwnerOnly | QFile::ReadGroup);
    EXPECT_EQ(refusal(shared), QString("Plik z hasłem " + shared + " mogą czytać inni "
                                       "użytkownicy; ustaw go tylko dla właściciela: chmod 600 "
                                       + shared)
                                   .toStdString());
    const QString missing = dir.filePath(QStringLiteral("brak.conf"));
    EXPECT_EQ(refusal(missing),
              QString("Brak pliku z hasłem do serwera Firebird: " + missing + ".").toStdString());
    const QString half = fileWith(dir, "ISC_USER=A\nISC_PASSWORD=\"\"\n", OwnerOnly);
    EXPECT_EQ(refusal(half), QString("W pliku " + half + " brakuje nazwy użytkownika albo hasła "
                              "(wiersze ISC_USER=... i ISC_PASSWORD=...).")
                                 .toStdString());
}

TEST(FirebirdLogin, AWrittenLoginIsItsOwnersOnlyAndReadsBackTheSame)
{
    QTemporaryDir dir;
    const FirebirdLogin made = FirebirdLogin::generated(QStringLiteral("HAULIX"));
    EXPECT_EQ(made.password.size(), 24);
    EXPECT_NE(made.password, FirebirdLogin::generated(QStringLiteral("HAULIX")).password);

    const QString path = dir.filePath(QStringLiteral("Kelvaro/haulix-login.conf"));
    made.write(path);
    EXPECT_EQ(QFileInfo(path).permissions(),
              OwnerOnly | QFile::ReadUser | QFile::WriteUser);
    const FirebirdLogin read = FirebirdLogin::read(path);
    EXPECT_EQ(read.user, made.user);
    EXPECT_EQ(read.password, made.password);
}
