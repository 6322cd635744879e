// haulix-bench-carriers: the carriers' invoice lists from the database to a
// PDF file as haulix-print makes them, and the road-card choice's list of
// cards, each against a raw forward-only fetch of the same statement; A and
// B interleaved, so that both see the same machine.
//
//   haulix-bench-carriers [--orders N] [--cards C] [--pairs P]
//
// A temporary database is seeded with the demo company (N orders, 10,000
// unless told) and C road cards (3,000: ten vehicles over some years).
#include "CarrierInvoiceList.h"
#include "Connection.h"
#include "CountOptions.h"
#include "Median.h"
#include "OffscreenProgram.h"
#include "PdfBook.h"
#include "PrintJobs.h"
#include "RawRows.h"
#include "RoadCardItems.h"
#include "SeededDatabase.h"
#include "Statement.h"
#include "TKarty_drObj.h"
#include "Transaction.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace {

struct Arguments
{
    int orders = 10000;
    int cards = 3000;
    int pairs = 9;
};

bool parse(const QStringList &arguments, Arguments &parsed)
{
    return parseCountOptions(arguments, {{QStringLiteral("--orders"), &parsed.orders},
                                         {QStringLiteral("--cards"), &parsed.cards},
                                         {QStringLiteral("--pairs"), &parsed.pairs}});
}

double milliseconds(const std::function<void()> &step)
{
    QElapsedTimer timer;
    timer.start();
    step();
    return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// A then B, pairs times; B's median and its ratio to A's in the same pair.
void compare(const char *name, int pairs, const std::function<void()> &floor,
             const std::function<void()> &measured)
{
    floor();
    measured();   // fonts, caches and the prepared statements
    std::vector<double> times;
    std::vector<double> ratios;
    for (int i = 0; i < pairs; ++i) {
        const double a = milliseconds(floor);
        const double b = milliseconds(measured);
        times.push_back(b);
        ratios.push_back(b / std::max(a, 0.001));
    }
    const auto [low, high] = std::minmax_element(ratios.begin(), ratios.end());
    std::printf("%-34s %8.1f ms  %6.1fx the raw fetch (%.1f - %.1f)\n", name, median(times),
                median(ratios), *low, *high);
    std::fflush(stdout);
}

void addCards(Connection &connection, int count)
{
    Transaction transaction(connection);
    TransactionScope scope(transaction);
    TKarty_drObj card(connection);
    for (int i = 0; i < count; ++i) {
        card.KIEROWCA = QStringLiteral("Kierowca %1").arg(i % 40);
        card.REJ_POJAZD = QStringLiteral("EL %1K").arg(4500 + i % 10);
        card.NUMER = i + 1;
        card.Insert();
    }
    scope.commit();
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parse(program.arguments(), arguments)) {
        std::fprintf(stderr,
                     "Użycie: haulix-bench-carriers [--orders N] [--cards C] [--pairs P]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        Connection connection;
        openSeededDatabase(connection, scratch.filePath(QStringLiteral("carriers-bench.fdb")),
                           arguments.orders);
        addCards(connection, arguments.cards);

        const QDate today = QDate::currentDate();
        const QString from = today.addYears(-1).toString(Qt::ISODate);
        const QString to = today.toString(Qt::ISODate);
        const QString file = scratch.filePath(QStringLiteral("lista.pdf"));
        std::printf("demo company with %d orders and %d more road cards, %d pairs\n\n",
                    arguments.orders, arguments.cards, arguments.pairs);

        const struct
        {
            const char *job;
            QStringList jobArguments;
            CarrierInvoiceList::Mode mode;
        } lists[] = {
            {"carriers-unpaid", {}, CarrierInvoiceList::Unpaid},
            {"carriers-paid", {from, to}, CarrierInvoiceList::Paid},
            {"carriers-issued", {from, to}, CarrierInvoiceList::Issued},
            {"carriers-payment", {}, CarrierInvoiceList::Unpaid},
        };
        for (const auto &list : lists) {
            const bool payments = QLatin1String(list.job) == QLatin1String("carriers-payment");
            CarrierInvoiceList selection;
            selection.mode = list.mode;
            selection.from = today.addYears(-1);
            selection.to = today;
            int rows = 0;
            const auto floor = [&] {
                Statement st(connection);
                if (payments)
                    CarrierInvoiceList::preparePayments(st);
                else
                    selection.prepare(st);
                rows = rawRows(st);
            };
            int pages = 0;
            const PrintJobs::Job *job = PrintJobs::find(QString::fromLatin1(list.job));
            const auto toPdf = [&] {
                PdfBook book;
                {
                    Transaction transaction(connection);
                    TransactionScope snapshot(transaction);
                    job->run(book, connection, list.jobArguments);
                }
                book.save(file);
                pages = book.pageCount();
            };
            compare(list.job, arguments.pairs, floor, toPdf);
            std::printf("%-34s %d invoices, %d pages\n", "", rows, pages);
        }

        int cards = 0;
        compare("road-card choice: the cards", arguments.pairs,
                [&] {
                    Statement st(connection);
                    st.add(QStringLiteral("SELECT * FROM KARTY_DR"));
                    cards = rawRows(st);
                },
                [&] { RoadCardItem::load(connection); });
        std::printf("%-34s %d cards\n", "", cards);
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
