#include "OffscreenProgram.h"

#include "DateTime.h"

#include <QLocale>
#include <QSettings>

OffscreenProgram::OffscreenProgram(int &argc, char **argv)
    : m_application(preparePlatform(argc), argv)
{
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    qRegisterMetaType<DateTime>();
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
}

int &OffscreenProgram::preparePlatform(int &argc)
{
    // Must be set before the application object reads it.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    return argc;
}

QStringList OffscreenProgram::arguments() const
{
    return QApplication::arguments().mid(1);
}
