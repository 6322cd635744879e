#include "ErrorLog.h"

#include <QDateTime>
#include <QSettings>

QString ErrorLog::oneLine(const QString &message)
{
    QString line = message;
    line.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    line.replace(QLatin1Char('\n'), QLatin1Char(' '));
    line.replace(QLatin1Char('\r'), QLatin1Char(' '));
    return line;
}

void ErrorLog::write(const QString &fileName, const QString &message)
{
    const QTime time = QTime::currentTime();
    const QDate date = QDate::currentDate();
    QSettings log(fileName, QSettings::IniFormat);
    log.beginGroup(date.toString(QStringLiteral("dd-MM-yyyy")));
    log.setValue(time.toString(QStringLiteral("HH:mm:ss")), oneLine(message));
    log.endGroup();
    log.sync();
}
