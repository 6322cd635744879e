// haulix-bench-register: how long the incoming orders register takes to load
// its list, against the same statement fetched through Qt's driver (read
// forward only, nothing done with the rows) and through Firebird's own C
// API (the floor), measured in interleaved rounds so that a busy machine
// weighs on all three alike; and what a listed row costs in memory.
//
//   haulix-bench-register [--db PATH] [--orders N] [--rounds N]
//
// With --db the database is used as it is (seed one with
// "haulix-admin seed PATH --orders 100000"); without it a temporary database
// is created and seeded with N orders (100,000 unless told). Two cases: the
// register's usual range (a month either side of today) and every order.
// Memory is measured in child processes (one per list, peak resident size
// with the whole table against an empty list).
#include "BenchTimer.h"
#include "Connection.h"
#include "DbError.h"
#include "DemoSeeder.h"
#include "EngineFetch.h"
#include "FrameEvents.h"
#include "OffscreenProgram.h"
#include "OrderListQuery.h"
#include "Schema.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TDateEdit.h"
#include "TframeListView.h"
#include "TfrmZlecPrzychodzace.h"
#include "Transaction.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

struct Arguments
{
    QString database;
    int orders = 100000;
    int rounds = 9;
    QString memoryList;   // "full" or "empty": the child that measures one list
};

bool parse(const QStringList &arguments, Arguments &parsed)
{
    if (arguments.size() % 2 != 0)
        return false;
    for (qsizetype i = 0; i < arguments.size(); i += 2) {
        const QString &value = arguments[i + 1];
        bool ok = true;
        if (arguments[i] == QLatin1String("--db"))
            parsed.database = value;
        else if (arguments[i] == QLatin1String("--orders"))
            parsed.orders = value.toInt(&ok);
        else if (arguments[i] == QLatin1String("--rounds"))
            parsed.rounds = value.toInt(&ok);
        else if (arguments[i] == QLatin1String("--memory"))
            parsed.memoryList = value;
        else
            return false;
        if (!ok || parsed.orders <= 0 || parsed.rounds < 1)
            return false;
    }
    return true;
}

double cpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// The elapsed time of a step, and the processor time the process spent on
// it (the embedded engine runs inside it): on a machine other programs keep
// busy, the second wanders far less.
struct Timing
{
    double wall = 0.0;
    double cpu = 0.0;
};

Timing measured(const std::function<void()> &step)
{
    QElapsedTimer timer;
    const double cpuStart = cpuMilliseconds();
    timer.start();
    step();
    return {static_cast<double>(timer.nsecsElapsed()) / 1e6, cpuMilliseconds() - cpuStart};
}

struct Spread
{
    double median = 0.0, low = 0.0, high = 0.0;
};

Spread spread(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t n = values.size();
    const double median = n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2.0;
    return {median, values.front(), values.back()};
}

// Every row of the statement through Qt's driver, read forward only,
// nothing converted beyond what the driver does in next().
int driverFetch(Connection &connection, const OrderListFilter &filter)
{
    Statement st(connection);
    OrderListQuery::prepare(st, filter);
    st.exec();
    int rows = 0;
    for (; !st.atEnd(); st.next())
        ++rows;
    return rows;
}

int floorFetch(Connection &connection, const OrderListFilter &filter)
{
    const QString text = OrderListQuery::lines(filter).join(QLatin1Char('\n'));
    const QHash<QString, QDateTime> parameters{
        {QStringLiteral("aDataOD"), QDateTime(filter.from, QTime(0, 0), Qt::UTC)},
        {QStringLiteral("aDataDo"), QDateTime(filter.to, QTime(0, 0), Qt::UTC)},
        {QStringLiteral("aDataZero"), QDateTime(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC)}};
    return engineFetch(connection, text, parameters);
}

void setRange(TfrmZlecPrzychodzace &form, const QDate &from, const QDate &to)
{
    form.deOd->setDate(from);
    form.deDo->setDate(to);
}

struct CaseResult
{
    QString name;
    int rows = 0;
    Spread floor, driver, load, overFloor, overDriver;
    Spread floorCpu, loadCpu, overFloorCpu;
};

// Rounds of floor, driver and load, one after the other; ratios are taken
// within a round.
CaseResult measureCase(const QString &name, Connection &connection, TfrmZlecPrzychodzace &form,
                       int rounds)
{
    const OrderListFilter filter = form.filter();
    std::vector<double> floor, driver, load, overFloor, overDriver, floorCpu, loadCpu, overCpu;
    CaseResult result;
    result.name = name;
    for (int round = 0; round < rounds; ++round) {
        int floorRows = 0, driverRows = 0;
        const Timing f = measured([&] { floorRows = floorFetch(connection, filter); });
        const Timing d = measured([&] { driverRows = driverFetch(connection, filter); });
        const Timing l = measured([&] { FrameEvents::send(&form, FrameEvents::ReloadLists); });
        floor.push_back(f.wall);
        driver.push_back(d.wall);
        load.push_back(l.wall);
        floorCpu.push_back(f.cpu);
        loadCpu.push_back(l.cpu);
        overCpu.push_back(l.cpu / f.cpu);
        const int listed = form.frameListView1->lvMain->itemCount();
        if (floorRows != listed || driverRows != listed)
            throw DbError(QStringLiteral("Różne liczby wierszy: %1, %2, %3")
                              .arg(floorRows).arg(driverRows).arg(listed));
        result.rows = listed;
        overFloor.push_back(load.back() / floor.back());
        overDriver.push_back(load.back() / driver.back());
    }
    result.floor = spread(floor);
    result.driver = spread(driver);
    result.load = spread(load);
    result.overFloor = spread(overFloor);
    result.overDriver = spread(overDriver);
    result.floorCpu = spread(floorCpu);
    result.loadCpu = spread(loadCpu);
    result.overFloorCpu = spread(overCpu);
    return result;
}

void print(const CaseResult &r)
{
    std::printf("\n%s: %d rows\n", qPrintable(r.name), r.rows);
    const auto line = [](const char *what, const Spread &s, const char *unit) {
        std::printf("  %-34s median %9.2f %-2s  range %9.2f - %9.2f\n", what, s.median, unit,
                    s.low, s.high);
    };
    line("C API fetch (floor)", r.floor, "ms");
    line("Qt driver forward-only fetch", r.driver, "ms");
    line("register load", r.load, "ms");
    line("load / C API fetch", r.overFloor, "x");
    line("load / Qt driver fetch", r.overDriver, "x");
    line("C API fetch, processor time", r.floorCpu, "ms");
    line("register load, processor time", r.loadCpu, "ms");
    line("load / C API fetch, processor time", r.overFloorCpu, "x");
}

// The child: opens the database, loads the register with the whole range
// or an empty one, and reports its rows and its peak resident size.
int measureMemory(Connection &connection, TfrmZlecPrzychodzace &form, const QString &list)
{
    if (list == QLatin1String("full"))
        setRange(form, QDate(1900, 1, 1), QDate(2100, 12, 31));
    else
        setRange(form, QDate(2100, 1, 1), QDate(2100, 1, 2));
    Q_UNUSED(connection);
    FrameEvents::send(&form, FrameEvents::ReloadLists);
    QFile status(QStringLiteral("/proc/self/status"));
    qint64 peakKb = -1;
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:"))
                peakKb = line.mid(6).trimmed().split(' ').front().toLongLong();
        }
    }
    std::printf("%d %lld\n", form.frameListView1->lvMain->itemCount(), peakKb);
    return peakKb > 0 ? 0 : 1;
}

struct MemorySample
{
    int rows = 0;
    qint64 peakKb = 0;
};

MemorySample memoryChild(const QString &database, const QString &list)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(),
                {QStringLiteral("--db"), database, QStringLiteral("--memory"), list});
    if (!child.waitForFinished(600000) || child.exitCode() != 0)
        throw DbError(QStringLiteral("Pomiar pamięci nie powiódł się: ")
                      + QString::fromLocal8Bit(child.readAllStandardError()));
    const QList<QByteArray> words = child.readAllStandardOutput().trimmed().split(' ');
    return {words.value(0).toInt(), words.value(1).toLongLong()};
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parse(program.arguments(), arguments)) {
        std::fprintf(stderr, "Użycie: haulix-bench-register [--db ŚCIEŻKA] [--orders N] "
                             "[--rounds N]\n");
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
        const auto form = TfrmRODefault::create<TfrmZlecPrzychodzace>();
        if (!arguments.memoryList.isEmpty()) {
            const int status = measureMemory(connection, *form, arguments.memoryList);
            setSession(0, nullptr, nullptr);
            return status;
        }

        std::printf("register load against the same statement's fetches, %d interleaved rounds\n",
                    arguments.rounds);
        const CaseResult usual = measureCase(QStringLiteral("usual range (a month either side)"),
                                             connection, *form, arguments.rounds);
        print(usual);
        setRange(*form, QDate(1900, 1, 1), QDate(2100, 12, 31));
        const CaseResult every = measureCase(QStringLiteral("every order"), connection, *form,
                                             arguments.rounds);
        print(every);
        setSession(0, nullptr, nullptr);

        std::vector<double> perRow;
        int listed = 0;
        for (int i = 0; i < 3; ++i) {
            const MemorySample full = memoryChild(path, QStringLiteral("full"));
            const MemorySample empty = memoryChild(path, QStringLiteral("empty"));
            listed = full.rows - empty.rows;
            perRow.push_back(double(full.peakKb - empty.peakKb) * 1024.0 / std::max(listed, 1));
        }
        const Spread memory = spread(perRow);
        std::printf("\nmemory: peak resident size, whole table against an empty list "
                    "(%d rows more), 3 pairs of processes\n", listed);
        std::printf("  %-34s median %9.0f B   range %9.0f - %9.0f\n", "per listed row",
                    memory.median, memory.low, memory.high);

        std::printf("\ngoals (medians of this run):\n");
        const auto goal = [](const char *what, double measured, double limit, const char *unit) {
            std::printf("  %-46s %9.2f %-2s (goal %s %.2f %s) %s\n", what, measured, unit,
                        "at most", limit, unit, measured <= limit ? "MET" : "NOT MET");
        };
        goal("usual range load", usual.load.median, 150.0, "ms");
        goal("every order: load / C API fetch", every.overFloor.median, 1.2, "x");
        goal("every order: the same in processor time", every.overFloorCpu.median, 1.2, "x");
        goal("memory per listed row", memory.median, 1000.0, "B");
        return 0;
    } catch (const DbError &error) {
        std::fprintf(stderr, "Błąd: %s\n", qPrintable(error.message()));
        return 1;
    }
}
