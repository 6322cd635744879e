#include "SiblingLibrary.h"

#include "MessageService.h"
#include "WaitCursor.h"

#include <QDir>

namespace {

QString platformSuffix()
{
#if defined(Q_OS_WIN)
    return QStringLiteral(".dll");
#elif defined(Q_OS_DARWIN)
    return QStringLiteral(".dylib");
#else
    return QStringLiteral(".so");
#endif
}

} // namespace

SiblingLibrary::SiblingLibrary(const QString &appPath, const QString &name,
                               const QStringList &entryNames)
    : m_path(pathFor(appPath, name)), m_entryNames(entryNames), m_library(m_path)
{
}

SiblingLibrary::~SiblingLibrary()
{
    unload();
}

QString SiblingLibrary::pathFor(const QString &appPath, const QString &name)
{
    return appPath + QStringLiteral("/Library/") + name + platformSuffix();
}

bool SiblingLibrary::load()
{
    bool loaded = false;
    {
        const WaitCursor hourglass;
        loaded = m_library.load();
    }
    if (!loaded) {
        Messages::error(QStringLiteral("Nie znaleziono biblioteki: ")
                        + QDir::toNativeSeparators(m_path));
        return false;
    }
    for (const QString &name : m_entryNames)
        m_entries.insert(name, m_library.resolve(name.toLatin1().constData()));
    return true;
}

void SiblingLibrary::unload()
{
    m_entries.clear();
    if (m_library.isLoaded())
        m_library.unload();
}
