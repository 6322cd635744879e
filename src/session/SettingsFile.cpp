#include "SettingsFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace {

// QSettings keeps the keys of the INI section [General] as top-level keys.
const QString AppPathKey = QStringLiteral("AppPath");

bool endsWithSeparator(const QString &path)
{
    return path.endsWith(QLatin1Char('/')) || path.endsWith(QLatin1Char('\\'));
}

QString withSeparator(const QString &path)
{
    return endsWithSeparator(path) ? path : path + QLatin1Char('/');
}

QString systemDirectory()
{
#ifdef Q_OS_WIN
    const QString windows = qEnvironmentVariable("WINDIR");
    return windows.isEmpty() ? QStringLiteral("C:/Windows") : QDir::fromNativeSeparators(windows);
#else
    return QStringLiteral("/etc");
#endif
}

} // namespace

HostEnvironment HostEnvironment::current()
{
    QStringList arguments = QCoreApplication::arguments();
    if (!arguments.isEmpty())
        arguments.removeFirst();
    return {arguments, QCoreApplication::applicationDirPath(), systemDirectory()};
}

QString SettingsFile::fileName(const HostEnvironment &host)
{
    if (host.arguments.size() == 1 && host.arguments.first().contains(QStringLiteral(".INI")))
        return host.arguments.first();
    const QString beside = withSeparator(host.executableDir) + DefaultName;
    if (QFileInfo::exists(beside))
        return beside;
    return withSeparator(host.systemDir) + DefaultName;
}

QString SettingsFile::storedAppPath(const QString &executableDir)
{
    const QString directory = withSeparator(executableDir);
    const bool driveRoot = directory.size() == 3 && directory.at(1) == QLatin1Char(':');
    return driveRoot ? directory.left(2) : directory;
}

QString SettingsFile::appPath(const QString &settingsFile, const QString &executableDir)
{
    QSettings settings(settingsFile, QSettings::IniFormat);
    if (settings.value(AppPathKey).toString().isEmpty()) {
        settings.setValue(AppPathKey, storedAppPath(executableDir));
        settings.sync();
    }
    QString path = settings.value(AppPathKey).toString();
    if (endsWithSeparator(path))
        path.chop(1);
    return path;
}
