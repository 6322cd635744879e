#include "TahomaFont.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace {

const QString Family = QStringLiteral("Tahoma");

void registerTahoma()
{
    if (QFontDatabase::hasFamily(Family))
        return;
    for (const char *file : {"tahoma.ttf", "tahomabd.ttf"})
        QFontDatabase::addApplicationFont(QStringLiteral("/usr/share/wine/fonts/") + QLatin1String(file));
}

} // namespace

QFont tahomaFont()
{
    // The font database needs the GUI application to exist.
    static const bool registered = [] {
        if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
            registerTahoma();
        return true;
    }();
    Q_UNUSED(registered);
    QFont font(Family);
    font.setStyleHint(QFont::SansSerif);
    return font;
}
