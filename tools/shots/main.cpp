// haulix-shots: renders the module's forms offscreen to PNG files.
//   haulix-shots OUTPUT_DIRECTORY [SHOT_NAME...]
#include "DateTime.h"
#include "ShotBook.h"
#include "Shots.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    qRegisterMetaType<DateTime>();
    QStringList arguments = QApplication::arguments().mid(1);
    if (arguments.isEmpty()) {
        std::fprintf(stderr, "użycie: haulix-shots KATALOG [NAZWA...]\n");
        return 2;
    }
    const QString directory = arguments.takeFirst();
    // List settings written while the program runs stay out of the user's own.
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    ShotBook book;
    registerShots(book);
    return book.renderAll(directory, arguments) == 0 ? 0 : 1;
}
