// haulix: the suite's host as far as this module needs one. It opens the
// database, loads Library/IncomingOrders (or, with --module, the library of a
// sibling module, to set up its master data) and calls an entry point with
// the user, the connection and the transaction, as the suite's host does.

#include "Connection.h"
#include "DbError.h"
#include "DemoDatabase.h"
#include "HostOptions.h"
#include "SiblingEntryPoints.h"
#include "SiblingRegisters.h"
#include "ModuleEntryPoints.h"
#include "PolishLanguage.h"
#include "Statement.h"
#include "TerminationSignals.h"
#include "Transaction.h"

#include <QApplication>
#include <QDir>
#include <QLibrary>
#include <QMessageBox>
#include <QTextStream>

namespace {

bool haveDisplay()
{
#if defined(Q_OS_LINUX)
    return qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || qEnvironmentVariableIsSet("DISPLAY")
        || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
#else
    return true;
#endif
}

// Said on the terminal and, once the application runs, in a box too.
int fail(const QString &message)
{
    QTextStream(stderr) << message << '\n';
    // Offscreen, nobody could close the box.
    if (qobject_cast<QApplication *>(QCoreApplication::instance())
        && QGuiApplication::platformName() != QLatin1String("offscreen"))
        QMessageBox::critical(nullptr, QStringLiteral("Haulix"), message);
    return 1;
}

// The help goes to the console, where it was asked for, never into a box.
int printUsage()
{
    QTextStream(stdout) << HostOptions::usage();
    return 0;
}

bool asksForHelp(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments << QString::fromLocal8Bit(argv[i]);
    QString error;
    const std::optional<HostOptions> options = HostOptions::parse(arguments, error);
    return options && options->help;
}

bool userExists(Connection &connection, int userId)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT COUNT(*) FROM USERS WHERE ID_USER=:aID_USER"));
    st.bind(QStringLiteral("aID_USER"), userId);
    st.exec();
    return st.integer(0) > 0;
}

} // namespace

int main(int argc, char **argv)
{
    // Before the display is needed: the help is plain text.
    if (asksForHelp(argc, argv))
        return printUsage();
    if (!haveDisplay()) {
        QTextStream(stderr)
            << "Brak ekranu (zmienna DISPLAY nie jest ustawiona).\n"
               "Aby uruchomić bez ekranu: xvfb-run haulix ... (ekran wirtualny, pakiet xvfb)\n"
               "albo QT_QPA_PLATFORM=offscreen haulix ... (okno niewidoczne).\n";
        return 1;
    }
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Kelvaro"));
    QApplication::setApplicationName(QStringLiteral("Haulix"));
    QApplication::setApplicationVersion(QStringLiteral(HAULIX_VERSION));
    usePolishLanguage();

    QString error;
    const std::optional<HostOptions> options
        = HostOptions::parse(QApplication::arguments().mid(1), error);
    if (!options)
        return fail(error);
    // Asked after Qt's own options (-platform ...), which Qt took out.
    if (options->help)
        return printUsage();

    Connection connection;
    QString target = options->database;
    try {
        if (target.isEmpty()) {
            target = DemoDatabase::ensure(
                [](const QString &message) { QTextStream(stdout) << message << '\n'; });
        }
        connection.open(target);
        if (!userExists(connection, options->userId))
            return fail(QStringLiteral("Nieznany użytkownik %1 w bazie %2.")
                            .arg(options->userId)
                            .arg(target));
    } catch (const DbError &e) {
        return fail(e.message());
    }

    const std::optional<SiblingRegister> sibling = SiblingRegister::named(options->module);
    const QString libraryName
        = sibling ? sibling->library : QLatin1String(ModuleEntryPoints::LibraryName);
    const QString libraryPath = QDir(QApplication::applicationDirPath())
                                    .filePath(QStringLiteral("Library/") + libraryName);
    QLibrary module(libraryPath);
    if (!module.load()) {
        return fail(QStringLiteral("Nie można załadować modułu %1: %2")
                        .arg(libraryPath, module.errorString()));
    }
    const QByteArray entryName = sibling ? sibling->entry.toLatin1()
        : options->partnersReport      ? QByteArray(ModuleEntryPoints::PartnersReport)
                                       : QByteArray(ModuleEntryPoints::IncomingOrders);
    const QFunctionPointer entry = module.resolve(entryName.constData());
    if (!entry) {
        return fail(QStringLiteral("Moduł %1 nie udostępnia funkcji %2.")
                        .arg(module.fileName(), QString::fromLatin1(entryName)));
    }

    const TerminationSignals terminationSignals;
    // Statements of the module commit as they run; its all-or-nothing work
    // brackets itself with scopes on this transaction. Whatever is still
    // open when the register closes is committed here.
    Transaction transaction(connection);
    std::int32_t result = 0;
    try {
        if (sibling && sibling->scheduler)
            result = reinterpret_cast<SiblingSchedulerEntry>(entry)(options->userId, &connection,
                                                                   &transaction, 0);
        else
            result = reinterpret_cast<ModuleEntry>(entry)(options->userId, &connection,
                                                          &transaction);
        if (transaction.InTransaction())
            transaction.Commit();
    } catch (const DbError &e) {
        return fail(e.message());
    } catch (const std::exception &e) {
        return fail(QString::fromLocal8Bit(e.what()));
    }
    connection.close();
    return result == 1 || result == 2 ? 0 : 1;
}
