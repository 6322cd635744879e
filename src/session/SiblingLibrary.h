#pragma once

#include <QHash>
#include <QLibrary>
#include <QString>
#include <QStringList>

// One sibling module of the suite, a shared library in the Library folder of
// the application directory, built without a "lib" prefix. It is loaded for
// one call and unloaded again by the destructor (or unload()), so nothing
// of a sibling stays in memory between calls.
class SiblingLibrary
{
public:
    // name is the file name without the platform suffix ("Drivers");
    // entryNames are resolved when the library loads.
    SiblingLibrary(const QString &appPath, const QString &name, const QStringList &entryNames);
    ~SiblingLibrary();
    SiblingLibrary(const SiblingLibrary &) = delete;
    SiblingLibrary &operator=(const SiblingLibrary &) = delete;

    // Loads the library under the hourglass and resolves every entry name.
    // When it cannot be loaded, shows "Nie znaleziono biblioteki: " with the
    // full path and returns false.
    bool load();
    void unload();
    bool isLoaded() const { return m_library.isLoaded(); }

    const QString &path() const { return m_path; }
    // Null for a name the library does not export or that was not resolved.
    QFunctionPointer entry(const QString &name) const { return m_entries.value(name); }

    // <appPath>/Library/<name> with the platform's suffix.
    static QString pathFor(const QString &appPath, const QString &name);

private:
    QString m_path;
    QStringList m_entryNames;
    QLibrary m_library;
    QHash<QString, QFunctionPointer> m_entries;
};
