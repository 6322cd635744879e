// haulix-bench-register: how long the incoming orders register takes to load
// its list, against a raw forward-only fetch of the same statement in the
// same run.
//
//   haulix-bench-register [--db PATH] [--orders N]
//
// With --db the database is used as it is (seed one with
// "haulix-admin seed PATH --orders 100000"); without it a temporary database
// is created and seeded with N orders (100,000 unless told).
#include "BenchTimer.h"
#include "Connection.h"
#include "DbError.h"
#include "DemoSeeder.h"
#include "FrameEvents.h"
#include "OffscreenProgram.h"
#include "OrderListQuery.h"
#include "Schema.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TframeListView.h"
#include "TfrmZlecPrzychodzace.h"
#include "Transaction.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

namespace {

struct Arguments
{
    QString database;
    int orders = 100000;
};

bool parse(const QStringList &arguments, Arguments &parsed)
{
    for (qsizetype i = 0; i + 1 < arguments.size(); i += 2) {
        if (arguments[i] == QLatin1String("--db")) {
            parsed.database = arguments[i + 1];
        } else if (arguments[i] == QLatin1String("--orders")) {
            bool ok = false;
            parsed.orders = arguments[i + 1].toInt(&ok);
            if (!ok || parsed.orders <= 0)
                return false;
        } else {
            return false;
        }
    }
    return arguments.size() % 2 == 0;
}

// Every row of the statement, read forward only, nothing converted beyond
// what the driver does in next().
int rawFetch(Connection &connection, const OrderListFilter &filter)
{
    Statement st(connection);
    st.setUniDirectional(true);
    OrderListQuery::prepare(st, filter);
    st.exec();
    int rows = 0;
    for (; !st.atEnd(); st.next())
        ++rows;
    return rows;
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parse(program.arguments(), arguments)) {
        std::fprintf(stderr, "Użycie: haulix-bench-register [--db ŚCIEŻKA] [--orders N]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        QString path = arguments.database;
        if (path.isEmpty()) {
            path = scratch.filePath(QStringLiteral("register-bench.fdb"));
            Schema::createDatabase(path);
        }
        Connection connection;
        connection.open(path);
        if (arguments.database.isEmpty()) {
            QElapsedTimer seeding;
            seeding.start();
            DemoSeeder::Options options;
            options.orders = arguments.orders;
            DemoSeeder(connection, options).seed();
            std::printf("seeded %d orders in %.1f s\n", arguments.orders,
                        static_cast<double>(seeding.elapsed()) / 1000.0);
        }
        Transaction transaction(connection);
        setSession(1, &connection, &transaction);

        BenchTimer timer;
        const auto form = TfrmRODefault::create<TfrmZlecPrzychodzace>();
        const OrderListFilter filter = form->filter();
        int fetched = 0;
        const double raw = timer.measure(QStringLiteral("raw forward-only fetch"),
                                         [&] { fetched = rawFetch(connection, filter); });
        const double load = timer.measure(QStringLiteral("register LoadLVData"), [&] {
            FrameEvents::send(form.get(), FrameEvents::ReloadLists);
        });
        const int listed = form->frameListView1->lvMain->itemCount();
        timer.print();
        std::printf("\nrows fetched %d, rows listed %d\n", fetched, listed);
        std::printf("register load / raw fetch = %.2f x (goal at most 1.5 x)\n", load / raw);
        setSession(0, nullptr, nullptr);
        return fetched == listed ? 0 : 1;
    } catch (const DbError &error) {
        std::fprintf(stderr, "Błąd: %s\n", qPrintable(error.message()));
        return 1;
    }
}
