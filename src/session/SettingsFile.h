#pragma once

#include <QString>
#include <QStringList>

// Where the host runs: what decides which settings file the suite uses.
struct HostEnvironment
{
    QStringList arguments;   // the command-line arguments after the program
    QString executableDir;   // the host executable's directory
    QString systemDir;       // the last place looked in for Haulix.ini

    // The running program: its arguments and directory, and the system
    // configuration directory (/etc, or the Windows directory on Windows).
    static HostEnvironment current();
};

// The suite's settings file Haulix.ini and the application directory in it.
namespace SettingsFile {

inline const QString DefaultName = QStringLiteral("Haulix.ini");

// A single argument containing ".INI" (upper case) names the file, so one
// installation can serve several companies; otherwise Haulix.ini beside
// the executable; when that does not exist, the one in the system directory
// (named even when it does not exist either).
QString fileName(const HostEnvironment &host);

// "AppPath" of section General. When it is missing or empty, the
// executable's directory is written there first; a drive root ("C:/") is
// stored as the drive alone ("C:"). One trailing separator is removed.
QString appPath(const QString &settingsFile, const QString &executableDir);

// The value stored for an executable directory.
QString storedAppPath(const QString &executableDir);

} // namespace SettingsFile
