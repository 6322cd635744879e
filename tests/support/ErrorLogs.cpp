#include "ErrorLogs.h"

#include <QDate>
#include <QSettings>

QStringList loggedToday(const QString &file)
{
    QSettings log(file, QSettings::IniFormat);
    log.beginGroup(QDate::currentDate().toString(QStringLiteral("dd-MM-yyyy")));
    QStringList values;
    for (const QString &key : log.childKeys())
        values << log.value(key).toString();
    return values;
}
