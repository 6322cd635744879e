// haulix-bench-year-reports: the long reports over every order of a large
// company, each written to PDF by haulix-print in a process of its own, as
// an office would run it: time and peak resident size per report. Then,
// side by side in this process, what painting the pages on all cores and
// drawing texts from kept glyphs bring to the clients statement, and what
// painting the partners report while it is laid out brings.
//
//   haulix-bench-year-reports [--orders N] [--repetitions R]
//
// A temporary database is seeded with the demo company (N orders, 100,000
// unless told). Goals: every report under 5 s with a peak under 300 MB.
#include "BenchTimer.h"
#include "Connection.h"
#include "CountOptions.h"
#include "Format.h"
#include "Median.h"
#include "OffscreenProgram.h"
#include "PartnersSelection.h"
#include "PdfBook.h"
#include "PdfDocument.h"
#include "PrintJobs.h"
#include "Report.h"
#include "ReportPainter.h"
#include "ReportTextCache.h"
#include "SeededDatabase.h"
#include "Statement.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmZestawienieKontrahenta.h"
#include "Transaction.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDate>
#include <QElapsedTimer>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QThread>

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <vector>

extern char **environ;

namespace {

struct Arguments
{
    int orders = 100000;
    int repetitions = 3;
};

struct ChildFigures
{
    double wallMs = 0.0;
    double peakMb = 0.0;
};

// Runs the program and waits for it; its own peak resident size comes
// with its exit status.
ChildFigures runChild(const QString &program, const QStringList &arguments)
{
    std::vector<QByteArray> words{program.toLocal8Bit()};
    for (const QString &argument : arguments)
        words.push_back(argument.toLocal8Bit());
    std::vector<char *> argv;
    for (QByteArray &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    QElapsedTimer timer;
    timer.start();
    pid_t pid = 0;
    if (posix_spawn(&pid, argv.front(), nullptr, nullptr, argv.data(), environ) != 0)
        throw std::runtime_error("haulix-print nie uruchomił się");
    int status = 0;
    rusage usage{};
    if (wait4(pid, &status, 0, &usage) != pid || !WIFEXITED(status) || WEXITSTATUS(status) != 0)
        throw std::runtime_error("haulix-print zakończył się błędem");
    return {static_cast<double>(timer.nsecsElapsed()) / 1e6, usage.ru_maxrss / 1024.0};
}

// The pages painted into a PDF in memory, one part, with or without kept
// glyphs.
void paintOnePart(const std::vector<ReportPage> &pages, const QPageLayout &layout, bool keptGlyphs)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(600);
    writer.setPageLayout(layout);
    QPainter painter(&writer);
    ReportTextCache texts;
    for (size_t index = 0; index < pages.size(); ++index) {
        if (index > 0)
            writer.newPage();
        ReportPainter::paintPage(painter, pages[index], writer.logicalDpiX() / 25.4,
                                 keptGlyphs ? &texts : nullptr);
    }
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parseCountOptions(program.arguments(),
                           {{QStringLiteral("--orders"), &arguments.orders},
                            {QStringLiteral("--repetitions"), &arguments.repetitions}})) {
        std::fprintf(stderr,
                     "Użycie: haulix-bench-year-reports [--orders N] [--repetitions R]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        const QString database = scratch.filePath(QStringLiteral("year-reports.fdb"));
        Connection connection;
        openSeededDatabase(connection, database, arguments.orders);
        Statement span(connection);
        span.add(QStringLiteral("SELECT MIN(DATA), MAX(DATA) FROM ZLECENIA_PRZYCH"));
        span.exec();
        const QDate from = span.dateTime(0).date();
        const QDate to = span.dateTime(1).date();
        span.close();
        const QStringList period{from.toString(Qt::ISODate), to.toString(Qt::ISODate)};
        std::printf("demo company with %d orders from %s to %s, %d cores, median of %d runs\n\n",
                    arguments.orders, qPrintable(period[0]), qPrintable(period[1]),
                    QThread::idealThreadCount(), arguments.repetitions);

        const QString print
            = QCoreApplication::applicationDirPath() + QStringLiteral("/haulix-print");
        const QString file = scratch.filePath(QStringLiteral("raport.pdf"));
        struct Goal
        {
            QString report;
            double ms;
            double mb;
        };
        std::vector<Goal> goals;
        // Alone on the file, as a report run at night is: a second process
        // on an embedded database makes the engine lock every page it reads.
        connection.close();
        std::printf("every order, haulix-print in a process of its own:\n");
        for (const char *report :
             {"statement-clients", "statement-carriers", "partners", "invoices-statement"}) {
            std::vector<double> times;
            std::vector<double> peaks;
            for (int run = 0; run < arguments.repetitions; ++run) {
                const ChildFigures figures = runChild(
                    print, {QStringLiteral("--db"), database, QString::fromLatin1(report),
                            period[0], period[1], file});
                times.push_back(figures.wallMs);
                peaks.push_back(figures.peakMb);
            }
            goals.push_back({QString::fromLatin1(report), median(times), median(peaks)});
            std::printf("  %-28s median %8.0f ms (%.0f - %.0f)   peak %6.0f MB\n", report,
                        median(times), *std::min_element(times.begin(), times.end()),
                        *std::max_element(times.begin(), times.end()), median(peaks));
            std::fflush(stdout);
        }

        // Side by side: the clients statement's pages painted as before and
        // as now.
        connection.open(database);
        TfrmZestawienieKontrahenta statement(connection, {from, to}, 0);
        std::vector<ReportPage> pages;
        {
            Transaction transaction(connection);
            TransactionScope snapshot(transaction);
            pages = statement.report().prepare();
        }
        const QPageLayout layout = statement.report().pageSetup().pageLayout();
        std::printf("\nclients statement, %zu pages, painted to PDF in memory:\n", pages.size());
        BenchTimer timer;
        const double laidOut = timer.measure(QStringLiteral("  one part, every text laid out"),
                                             [&] { paintOnePart(pages, layout, false); },
                                             arguments.repetitions);
        const double kept = timer.measure(QStringLiteral("  one part, kept glyphs"),
                                          [&] { paintOnePart(pages, layout, true); },
                                          arguments.repetitions);
        const QString partsStep = QStringLiteral("  parts on every core, kept glyphs");
        const double parts = timer.measure(partsStep, [&] {
            PdfDocument document(statement.report().title());
            document.addPages(pages, layout);
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            document.write(buffer);
        }, arguments.repetitions);
        std::printf("  kept glyphs: %.2f x as fast; parts as well: %.2f x\n", laidOut / kept,
                    laidOut / parts);

        // Side by side: the partners report laid out first and painted
        // then, and painted while it is being laid out.
        PartnersSelection selection;
        selection.from = from;
        selection.to = to;
        selection.fromText = Format::date(from);
        selection.toText = Format::date(to);
        selection.showAll = true;
        TfrmRepWspolnicy partners(connection);
        partners.select(selection);
        Report &partnersReport = partners.QuickRep1();
        const QPageLayout partnersLayout = partnersReport.pageSetup().pageLayout();
        const auto inSnapshot = [&](const auto &work) {
            Transaction transaction(connection);
            TransactionScope snapshot(transaction);
            QByteArray bytes;
            QBuffer buffer(&bytes);
            buffer.open(QIODevice::WriteOnly);
            work(buffer);
        };
        std::printf("\npartners report, every order, to PDF in memory:\n");
        const double before = timer.measure(QStringLiteral("  laid out, then painted"), [&] {
            inSnapshot([&](QBuffer &buffer) {
                const std::vector<ReportPage> &laidOutPages = partnersReport.prepare();
                PdfDocument document(partnersReport.title());
                document.addPages(laidOutPages, partnersLayout);
                document.write(buffer);
            });
        }, arguments.repetitions);
        const double meanwhile = timer.measure(QStringLiteral("  painted while laid out"), [&] {
            inSnapshot([&](QBuffer &buffer) {
                PdfBook book;
                book.add(partnersReport);
                book.write(buffer);
            });
        }, arguments.repetitions);
        std::printf("  painted while laid out: %.2f x as fast\n", before / meanwhile);

        std::printf("\ngoals (medians of this run):\n");
        for (const Goal &goal : goals) {
            const bool met = goal.ms < 5000.0 && goal.mb < 300.0;
            std::printf("  %-28s %6.0f ms (goal under 5000)  %4.0f MB (goal under 300)  %s\n",
                        qPrintable(goal.report), goal.ms, goal.mb, met ? "MET" : "NOT MET");
        }
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
