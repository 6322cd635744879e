// haulix-print: any printout of the module to a PDF file, without a screen.
//
//   haulix-print --db DB NAME [ARGUMENTS] FILE
//   haulix-print --db DB ksef ID FILE.xml | ksef-range FROM TO DIR
//
// A failure is one Polish line on stderr and exit status 1 (2 for a wrong
// command line); the file is then left as it was, or not made at all.

#include "Connection.h"
#include "DateTime.h"
#include "DbError.h"
#include "KsefCommand.h"
#include "PdfBook.h"
#include "PrintCommand.h"
#include "PrintJobs.h"
#include "PrintoutError.h"
#include "ReportError.h"
#include "StderrMessages.h"
#include "Transaction.h"

#include <QApplication>
#include <QLocale>
#include <QTextStream>

#include <stdexcept>

namespace {

// stderr carries the program's one line; Qt's own remarks about the
// machine (no runtime directory, fonts) would only bury it.
void quietQt(QtMsgType type, const QMessageLogContext &, const QString &message)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        StderrMessages::say(message);
}

int fail(const QString &message)
{
    StderrMessages::say(message);
    return 1;
}

int print(const PrintCommand &command)
{
    Connection connection;
    try {
        connection.open(command.database);
    } catch (const DbError &error) {
        // Says which database and why, in Polish.
        return fail(error.message());
    }
    PdfBook book;
    {
        // One snapshot for every report of the document; nothing is written.
        Transaction transaction(connection);
        TransactionScope snapshot(transaction);
        command.job->run(book, connection, command.arguments);
    }
    book.save(command.file);
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    // Never a window: the platform needs no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietQt);
    // A full application: the statements' charts are drawn by widgets' code.
    QApplication application(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    qRegisterMetaType<DateTime>();

    MessageServices::setProgramService(std::make_unique<StderrMessages>());
    if (const std::optional<int> status = KsefCommand::run(QApplication::arguments().mid(1)))
        return *status;
    QString error;
    const std::optional<PrintCommand> command
        = PrintCommand::parse(QApplication::arguments().mid(1), error);
    if (!command) {
        QTextStream(stderr) << error;
        return 2;
    }
    try {
        return print(*command);
    } catch (const PrintoutError &e) {
        return fail(e.message());
    } catch (const DbError &e) {
        return fail(QStringLiteral("Błąd bazy danych: ") + e.message());
    } catch (const ReportError &e) {
        return fail(e.message());
    } catch (const std::invalid_argument &e) {
        StderrMessages::say(QString::fromUtf8(e.what()));
        return 2;
    }
}
