// haulix-bench-printouts: an invoice with its attachment from the database
// to a PDF file, as haulix-print makes it, for an invoice that covers 200
// orders and for one that covers one.
//
//   haulix-bench-printouts [--orders N] [--repetitions R]
//
// A temporary database is seeded with the demo company (N orders, 600
// unless told); the 200-order invoice is made there from its orders.
#include "Connection.h"
#include "CountOptions.h"
#include "DbError.h"
#include "DemoSeeder.h"
#include "Median.h"
#include "OffscreenProgram.h"
#include "PdfBook.h"
#include "PrintJobs.h"
#include "SeededDatabase.h"
#include "Statement.h"
#include "TableObjects.h"
#include "Transaction.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

constexpr int CoveredOrders = 200;

struct Arguments
{
    int orders = DemoSeeder::Options().orders;
    int repetitions = 9;
};

bool parse(const QStringList &arguments, Arguments &parsed)
{
    return parseCountOptions(arguments, {{QStringLiteral("--orders"), &parsed.orders},
                                         {QStringLiteral("--repetitions"), &parsed.repetitions}});
}

int scalar(Connection &connection, const QString &sql)
{
    Statement st(connection);
    st.add(sql);
    st.exec();
    return st.integer(0);
}

// A demo invoice again, now covering the first orders of the company; one
// position, as invoicing writes it.
int invoiceOfManyOrders(Connection &connection, int orders)
{
    Transaction transaction(connection);
    TransactionScope scope(transaction);
    TFakturyObj invoice = TFakturyObj(connection).SelectById(
        scalar(connection, QStringLiteral("SELECT MIN(ID_FAKTURY) FROM FAKTURY")));
    invoice.NUMER_PELNY = QStringLiteral("999/12/2026");
    invoice.Insert();
    const int key = invoice.GetMaxId();
    TFaktury_pozycjeObj position(connection);
    position.ID_FAKTURY = key;
    position.TRESC = QStringLiteral("Przewóz towaru wg załącznika");
    position.ILOSC = 1;
    position.JM = QStringLiteral("Fracht");
    position.CENA_NETTO = 250000;
    position.ID_VAT = 1;
    position.Insert();
    Statement st(connection);
    st.add(
        QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY = :aKey WHERE ID_ZLECENIA_PRZYCH IN"));
    st.add(QStringLiteral("(SELECT FIRST %1 ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH"
                          " WHERE DATA IS NOT NULL ORDER BY ID_ZLECENIA_PRZYCH)").arg(orders));
    st.bind(QStringLiteral("aKey"), key);
    st.exec();
    scope.commit();
    return key;
}

struct Timing
{
    double median;
    double fastest;
    double slowest;
    double layoutMedian;   // reading the data and laying the pages out
    int pages;
};

// What haulix-print does after opening the database: lay both reports out
// in one snapshot and save the file.
Timing measure(Connection &connection, int invoiceKey, const QString &file, int repetitions)
{
    const PrintJobs::Job *job = PrintJobs::find(QStringLiteral("invoice-with-attachment"));
    std::vector<double> times;
    std::vector<double> layouts;
    int pages = 0;
    for (int i = 0; i < repetitions; ++i) {
        QElapsedTimer timer;
        timer.start();
        PdfBook book;
        {
            Transaction transaction(connection);
            TransactionScope snapshot(transaction);
            job->run(book, connection, {QString::number(invoiceKey)});
        }
        layouts.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        book.save(file);
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
        pages = book.pageCount();
    }
    const auto [fastest, slowest] = std::minmax_element(times.begin(), times.end());
    return {median(times), *fastest, *slowest, median(layouts), pages};
}

void report(const char *name, const Timing &t, double goal)
{
    std::printf("%-42s %7.1f ms (%.1f - %.1f; data and layout %.1f; %d pages)"
                "  goal < %.0f ms: %s\n",
                name, t.median, t.fastest, t.slowest, t.layoutMedian, t.pages, goal,
                t.median < goal ? "met" : "MISSED");
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parse(program.arguments(), arguments)) {
        std::fprintf(stderr, "Użycie: haulix-bench-printouts [--orders N] [--repetitions R]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        Connection connection;
        openSeededDatabase(connection, scratch.filePath(QStringLiteral("printouts-bench.fdb")),
                           arguments.orders);
        const int many = invoiceOfManyOrders(connection, CoveredOrders);
        const int one = scalar(connection,
                               QStringLiteral("SELECT FIRST 1 IDFAKTURY FROM ZLECENIA_PRZYCH"
                                              " WHERE IDFAKTURY > 0 GROUP BY IDFAKTURY"
                                              " HAVING COUNT(*) = 1 ORDER BY IDFAKTURY"));
        const int covered = scalar(connection,
            QStringLiteral("SELECT COUNT(*) FROM ZLECENIA_PRZYCH WHERE IDFAKTURY = %1").arg(many));
        std::printf("demo company with %d orders; invoice %d covers %d orders, invoice %d one\n\n",
                    arguments.orders, many, covered, one);

        const QString file = scratch.filePath(QStringLiteral("faktura.pdf"));
        // The first run loads fonts and warms the engine's caches.
        measure(connection, one, file, 1);
        report("invoice + attachment, 200 orders -> PDF",
               measure(connection, many, file, arguments.repetitions), 300);
        report("invoice + attachment, 1 order -> PDF",
               measure(connection, one, file, arguments.repetitions), 100);
        return covered == CoveredOrders && one > 0 ? 0 : 1;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
