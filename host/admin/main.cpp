// haulix-admin: creates and fills databases of the suite.
//
//   haulix-admin create PATH               a new database from the schema
//   haulix-admin seed PATH [--orders N]    the demo company into an empty database
//   haulix-admin summary PATH              what a database holds
//   haulix-admin demo                      the demo database in the user's data
//                                          directory, created and seeded on first use
//   haulix-admin backup DB FILE.fbk        a copy through gbak, while others work
//   haulix-admin restore FILE.fbk NEWDB    a database from a copy, never over another
//   haulix-admin statistics DB             the indexes measured again, for the engine
//                                          to read a grown company's tables well
//   haulix-admin server-setup PATH         a database on a Firebird server for the
//                                          workstations, with a user of their own
//   haulix-admin invoice PATH --client ...  a client's orders of a period onto one invoice

#include "CommandArguments.h"
#include "Connection.h"
#include "DatabaseBackup.h"
#include "DbError.h"
#include "DemoDatabase.h"
#include "DemoSeeder.h"
#include "IndexStatistics.h"
#include "InvoiceCommand.h"
#include "Schema.h"
#include "ServerSetup.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTextStream>

#include <cstdio>
#include <functional>

namespace {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

QTextStream &err()
{
    static QTextStream stream(stderr);
    return stream;
}

int usage()
{
    err() << "Użycie:\n"
             "  haulix-admin create ŚCIEŻKA\n"
             "  haulix-admin seed ŚCIEŻKA [--orders N]\n"
             "  haulix-admin summary ŚCIEŻKA\n"
             "  haulix-admin demo\n"
          << InvoiceCommand::usage()
          << "  haulix-admin backup BAZA PLIK.fbk [--login PLIK]\n"
             "  haulix-admin restore PLIK.fbk NOWA_BAZA [--login PLIK]\n"
             "  haulix-admin statistics BAZA [--login PLIK]\n"
             "  haulix-admin server-setup ŚCIEŻKA [--from BAZA] [--server HOST[/PORT]]\n"
             "                            [--admin PLIK] [--login PLIK]\n"
             "BAZA to plik albo host[/port]:ścieżka na serwerze Firebird; --login to plik\n"
             "z ISC_USER i ISC_PASSWORD (tylko dla właściciela, chmod 600).\n";
    err().flush();
    return 2;
}

void printSummary(const QString &path)
{
    Connection connection;
    connection.open(path);
    out() << "Baza: " << path << '\n';
    for (const QString &line : DemoSeeder::summary(connection))
        out() << line << '\n';
    out().flush();
}

// A path as it must be typed in the shell.
QString shellWord(const QString &path)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_./:@%+=,-]+$"));
    if (plain.match(path).hasMatch())
        return path;
    return QLatin1Char('\'') + QString(path).replace(u'\'', QStringLiteral("'\\''"))
        + QLatin1Char('\'');
}

int seed(const QString &path, int orders, const QString &ordersArgument)
{
    QElapsedTimer timer;
    timer.start();
    Connection connection;
    connection.open(path);
    if (DemoSeeder::contents(connection) == DemoSeeder::Contents::SeedLeftovers) {
        // Only a new database gives the keys back.
        connection.close();
        err() << "Błąd: " << DemoSeeder::describe(DemoSeeder::Contents::SeedLeftovers) << '\n'
              << "Aby zacząć od nowa, usuń plik bazy i wykonaj:\n"
              << "  haulix-admin create " << shellWord(path) << '\n'
              << "  haulix-admin seed " << shellWord(path) << ordersArgument << '\n';
        err().flush();
        return 1;
    }
    DemoSeeder::Options options;
    options.orders = orders;
    DemoSeeder(connection, options).seed();
    out() << QStringLiteral("Dane demonstracyjne zapisane (%1 zleceń) w %2 s.\n")
                 .arg(orders)
                 .arg(timer.elapsed() / 1000.0, 0, 'f', 1);
    out().flush();
    return 0;
}

// The login to a server, from --login or the workstation's own file; none
// for a database file.
DatabaseBackup backupFor(const QString &database, const CommandArguments &arguments)
{
    if (!Connection::isServerTarget(database))
        return DatabaseBackup(std::nullopt, QString());
    const QString file = arguments.option(QStringLiteral("login"),
                                          FirebirdLogin::workstationFile());
    return DatabaseBackup(FirebirdLogin::read(file), file);
}

// Runs the work and says what was done and how long it took.
int timed(const std::function<void()> &work, const QString &done)
{
    QElapsedTimer timer;
    timer.start();
    work();
    out() << done.arg(timer.elapsed() / 1000.0, 0, 'f', 1) << '\n';
    return 0;
}

int backup(const CommandArguments &arguments)
{
    const QString database = arguments.positional().at(0);
    const QString file = arguments.positional().at(1);
    return timed([&] { backupFor(database, arguments).backup(database, file); },
                 QStringLiteral("Kopia bazy %1 zapisana w %2 (%3 s).").arg(database, file));
}

int restore(const CommandArguments &arguments)
{
    const QString file = arguments.positional().at(0);
    const QString database = arguments.positional().at(1);
    return timed([&] { backupFor(database, arguments).restore(file, database); },
                 QStringLiteral("Baza %1 odtworzona z kopii %2 (%3 s).").arg(database, file));
}

int statistics(const CommandArguments &arguments)
{
    const QString database = arguments.positional().at(0);
    Connection connection;
    const QString loginFile = arguments.option(QStringLiteral("login"));
    if (Connection::isServerTarget(database) && !loginFile.isEmpty()) {
        const FirebirdLogin login = FirebirdLogin::read(loginFile);
        connection.open(database, login.user, login.password);
    } else {
        connection.open(database);
    }
    return timed([&] { IndexStatistics::refresh(connection); },
                 QStringLiteral("Indeksy bazy %1 zmierzone na nowo (%2 s).").arg(database));
}

int serverSetup(const CommandArguments &arguments)
{
    ServerSetup::Options options;
    options.path = arguments.positional().at(0);
    options.from = arguments.option(QStringLiteral("from"));
    options.server = arguments.option(QStringLiteral("server"), options.server);
    options.adminFile = arguments.option(QStringLiteral("admin"), options.adminFile);
    options.loginFile = arguments.option(QStringLiteral("login"), options.loginFile);
    for (const QString &line : ServerSetup(options).run())
        out() << line << '\n';
    return 0;
}

struct Command
{
    const char *name;
    int positional;
    QStringList options;
    int (*run)(const CommandArguments &);
};

// The commands that take options; their arguments are checked before
// anything is touched.
const Command OptionCommands[] = {
    {"backup", 2, {QStringLiteral("login")}, backup},
    {"restore", 2, {QStringLiteral("login")}, restore},
    {"statistics", 1, {QStringLiteral("login")}, statistics},
    {"server-setup", 1,
     {QStringLiteral("from"), QStringLiteral("server"), QStringLiteral("admin"),
      QStringLiteral("login")},
     serverSetup},
};

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Kelvaro"));
    QCoreApplication::setApplicationName(QStringLiteral("Haulix"));
    const QStringList args = QCoreApplication::arguments().mid(1);
    if (args.isEmpty())
        return usage();
    const QString command = args.first();
    try {
        if (command == QLatin1String("create") && args.size() == 2) {
            Schema::createDatabase(args[1]);
            out() << "Utworzono bazę danych: " << args[1] << '\n';
            return 0;
        }
        if (command == QLatin1String("seed") && (args.size() == 2 || args.size() == 4)) {
            int orders = DemoSeeder::Options().orders;
            QString ordersArgument;
            if (args.size() == 4) {
                ordersArgument = QLatin1Char(' ') + args[2] + QLatin1Char(' ') + args[3];
                bool ok = false;
                orders = args[3].toInt(&ok);
                if (args[2] != QLatin1String("--orders") || !ok || orders < 0) {
                    err() << "Liczba zleceń musi być liczbą całkowitą nieujemną: " << args[3] << '\n';
                    return 2;
                }
            }
            return seed(args[1], orders, ordersArgument);
        }
        if (command == QLatin1String("summary") && args.size() == 2) {
            printSummary(args[1]);
            return 0;
        }
        if (command == QLatin1String("invoice"))
            return InvoiceCommand::run(args.mid(1), out(), err());
        for (const Command &known : OptionCommands) {
            if (command != QLatin1String(known.name))
                continue;
            QString error;
            const std::optional<CommandArguments> arguments
                = CommandArguments::parse(args.mid(1), known.positional, known.options, error);
            if (!arguments) {
                err() << error << '\n';
                return usage();
            }
            return known.run(*arguments);
        }
        if (command == QLatin1String("demo") && args.size() == 1) {
            const QString path = DemoDatabase::ensure([](const QString &message) {
                out() << message << '\n';
                out().flush();
            });
            printSummary(path);
            return 0;
        }
    } catch (const DbError &error) {
        err() << "Błąd: " << error.message() << '\n';
        return 1;
    }
    return usage();
}
