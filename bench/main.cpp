// haulix-bench: timings of the module's heavy paths, printed as one table.
//   haulix-bench [ROWS]
#include "BenchTimer.h"
#include "DateTime.h"
#include "ListViewBench.h"

#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    qRegisterMetaType<DateTime>();
    const QStringList arguments = QApplication::arguments();
    const int rows = arguments.size() > 1 ? arguments[1].toInt() : 100000;

    // List settings written while the program runs stay out of the user's own.
    QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    BenchTimer timer;
    benchListView(timer, rows > 0 ? rows : 100000);
    timer.print();
    return 0;
}
