#include "SystemInfo.h"

#include <QCoreApplication>
#include <QStringList>

#if defined(__GLIBC__)
#include <dlfcn.h>
#include <malloc.h>
#endif

namespace SystemInfo {

HeapUse heapUse()
{
#if defined(__GLIBC__)
    const struct mallinfo2 info = mallinfo2();
    return {static_cast<qint64>(info.uordblks + info.hblkhd), static_cast<qint64>(1 + info.hblks)};
#else
    return {};
#endif
}

QString versionText(const QString &version)
{
    QStringList parts = version.trimmed().split(u'.', Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return QStringLiteral("-");
    while (parts.size() < 4)
        parts << QStringLiteral("0");
    return parts.mid(0, 4).join(u'.');
}

QString moduleFilePath()
{
#if defined(__GLIBC__)
    Dl_info info{};
    if (dladdr(reinterpret_cast<void *>(&moduleFilePath), &info) && info.dli_fname)
        return QString::fromLocal8Bit(info.dli_fname);
#endif
    return QCoreApplication::applicationFilePath();
}

QString text(const QString &windowClass)
{
    const HeapUse heap = heapUse();
    return QStringLiteral("Aplikacja: ") + QCoreApplication::applicationFilePath()
        + QStringLiteral(" ver: ") + versionText(QCoreApplication::applicationVersion()) + u'\n'
        + QStringLiteral("Moduł: ") + moduleFilePath() + QStringLiteral(" ver:")
        + versionText(QStringLiteral(HAULIX_VERSION)) + u'\n'
        + QStringLiteral("Okno: ") + windowClass + u'\n'
        + QStringLiteral("Katalog: ") + QCoreApplication::applicationDirPath() + u'\n'
        + QStringLiteral("Zajęte: ") + QString::number(heap.bytes / 1024) + QStringLiteral("KB w ")
        + QString::number(heap.blocks) + QStringLiteral(" blokach.") + u'\n'
        + QStringLiteral("Czy skopiować informacje do schowka?");
}

} // namespace SystemInfo
