// haulix-bench-statements: each statement of the statements menu over a
// year, read from the database, laid out and written to a PDF file as
// haulix-print makes it.
//
//   haulix-bench-statements [--orders N] [--runs R]
//
// A temporary database is seeded with the demo company of N orders
// (100,000 unless told); the year ends today.
#include "BenchTimer.h"
#include "Connection.h"
#include "CountOptions.h"
#include "OffscreenProgram.h"
#include "PdfBook.h"
#include "PrintJobs.h"
#include "SeededDatabase.h"
#include "Transaction.h"

#include <QDate>
#include <QTemporaryDir>

#include <cstdio>

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    int orders = 100000;
    int runs = 3;
    if (!parseCountOptions(program.arguments(),
                           {{QStringLiteral("--orders"), &orders},
                            {QStringLiteral("--runs"), &runs}})) {
        std::fprintf(stderr, "Użycie: haulix-bench-statements [--orders N] [--runs R]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        Connection connection;
        openSeededDatabase(connection, scratch.filePath(QStringLiteral("statements.fdb")),
                           orders);
        const QDate today = QDate::currentDate();
        const QStringList year{today.addYears(-1).addDays(1).toString(Qt::ISODate),
                               today.toString(Qt::ISODate)};
        const QString file = scratch.filePath(QStringLiteral("zestawienie.pdf"));
        std::printf("demo company with %d orders, a year to %s, median of %d runs\n\n", orders,
                    qPrintable(year.last()), runs);
        BenchTimer timer;
        for (const char *name : {"statement-clients", "statement-carriers",
                                 "statement-rate-differences", "statement-user-rates",
                                 "statement-user-invoices", "statement-user-carrier-invoices"}) {
            const PrintJobs::Job *job = PrintJobs::find(QString::fromLatin1(name));
            int pages = 0;
            timer.measure(QString::fromLatin1(name), [&] {
                PdfBook book;
                {
                    Transaction transaction(connection);
                    TransactionScope snapshot(transaction);
                    job->run(book, connection, year);
                }
                book.save(file);
                pages = book.pageCount();
            }, runs);
            std::printf("%-34s %d pages\n", name, pages);
            std::fflush(stdout);
        }
        timer.print();
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
