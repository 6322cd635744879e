// haulix-bench-statements: every statement of the statements menu and the
// partners report from the database to a PDF file, as haulix-print makes
// them, over a month and over a year. The statement of issued invoices and
// the partners report stand beside a raw forward-only fetch of their own
// statement (the floor).
//
//   haulix-bench-statements [--orders N] [--repetitions R]
//
// A temporary database is seeded with the demo company (N orders, 100,000
// unless told); the periods end today. Goals: a year's statement of issued
// invoices under 2 s, a year's partners report under 1 s.
#include "BenchTimer.h"
#include "Configuration.h"
#include "Connection.h"
#include "CountOptions.h"
#include "IssuedInvoices.h"
#include "OffscreenProgram.h"
#include "PartnersSelection.h"
#include "PdfBook.h"
#include "PrintJobs.h"
#include "RawRows.h"
#include "SeededDatabase.h"
#include "Statement.h"
#include "TfrmZestawienieRachunkow.h"
#include "Transaction.h"

#include <QDate>
#include <QTemporaryDir>

#include <cstdio>

namespace {

struct Arguments
{
    int orders = 100000;
    int repetitions = 5;
};

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parseCountOptions(program.arguments(),
                           {{QStringLiteral("--orders"), &arguments.orders},
                            {QStringLiteral("--repetitions"), &arguments.repetitions}})) {
        std::fprintf(stderr,
                     "Użycie: haulix-bench-statements [--orders N] [--repetitions R]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        Connection connection;
        openSeededDatabase(connection, scratch.filePath(QStringLiteral("statements-bench.fdb")),
                           arguments.orders);
        const QString file = scratch.filePath(QStringLiteral("raport.pdf"));
        const int owner = Configuration(&connection).GetConfigInt(QStringLiteral("IDWłaściciela"));
        const QString own = PartnersSelection::ownShortName(connection);
        const QDate today = QDate::currentDate();
        std::printf("demo company with %d orders, median of %d runs\n\n", arguments.orders,
                    arguments.repetitions);

        BenchTimer timer;
        // One job to a PDF file as haulix-print writes it; its page count.
        const auto toPdf = [&](const char *name, const QString &span,
                               const QStringList &period) {
            const PrintJobs::Job *job = PrintJobs::find(QString::fromLatin1(name));
            int pages = 0;
            timer.measure(QStringLiteral("%1, %2: to PDF").arg(QLatin1String(name), span), [&] {
                PdfBook book;
                {
                    Transaction transaction(connection);
                    TransactionScope snapshot(transaction);
                    job->run(book, connection, period);
                }
                book.save(file);
                pages = book.pageCount();
            }, arguments.repetitions);
            return pages;
        };
        for (const auto &[span, from] : {std::pair{"month", today.addMonths(-1)},
                                         {"year", today.addYears(-1)}}) {
            const QStringList period{from.toString(Qt::ISODate), today.toString(Qt::ISODate)};
            const struct
            {
                const char *job;
                std::function<void(Statement &)> prepare;
            } reports[] = {
                {"invoices-statement",
                 [&](Statement &st) { IssuedInvoices(connection, from, today, false)
                                          .prepare(st, owner); }},
                {"partners",
                 [&](Statement &st) {
                     PartnersSelection selection;
                     selection.from = from;
                     selection.to = today;
                     selection.prepare(st, own);
                 }},
            };
            for (const auto &report : reports) {
                int rows = 0;
                timer.measure(QStringLiteral("%1, %2: raw fetch").arg(report.job, span), [&] {
                    Statement st(connection);
                    report.prepare(st);
                    rows = rawRows(st);
                }, arguments.repetitions);
                const int pages = toPdf(report.job, QString::fromLatin1(span), period);
                std::printf("%-48s %d rows, %d pages\n", "", rows, pages);
            }
            // Where the statement's time goes: its records, then their layout.
            std::vector<TPozycjaZestawienia> records;
            timer.measure(QStringLiteral("invoices-statement, %1: records").arg(span), [&] {
                IssuedInvoices invoices(connection, from, today, false);
                invoices.read();
                records = invoices.build();
            }, arguments.repetitions);
            TfrmZestawienieRachunkow statement(connection);
            statement.setRecords(records);
            timer.measure(QStringLiteral("invoices-statement, %1: layout").arg(span),
                          [&] { statement.qrZestawienie().prepare(); }, arguments.repetitions);
            // The statements of the statements menu, each to PDF.
            for (const char *name : {"statement-clients", "statement-carriers",
                                     "statement-rate-differences", "statement-user-rates",
                                     "statement-user-invoices",
                                     "statement-user-carrier-invoices"}) {
                const int pages = toPdf(name, QString::fromLatin1(span), period);
                std::printf("%-48s %d pages\n", "", pages);
                std::fflush(stdout);
            }
        }
        timer.print();
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
