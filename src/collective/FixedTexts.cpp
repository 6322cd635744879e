#include "FixedTexts.h"

#include <QFile>
#include <QFileInfo>

namespace FixedTexts {

QString fileName(const QString &appPath, int number)
{
    return appPath + QStringLiteral("/Reports/ZleceniaTeksty/") + QString::number(number)
           + QStringLiteral(".txt");
}

bool exists(const QString &appPath, int number)
{
    return QFileInfo(fileName(appPath, number)).isFile();
}

QString read(const QString &appPath, int number)
{
    QFile file(fileName(appPath, number));
    if (!file.open(QIODevice::ReadOnly))
        return QString();
    return QString::fromUtf8(file.readAll());
}

} // namespace FixedTexts
