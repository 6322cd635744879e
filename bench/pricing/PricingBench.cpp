// haulix-bench-pricing: the price look-up and the distance memory against
// one plain query each, and the opening of the grid of amounts and the
// distance register, on a database the size of a busy domestic company.

#include "BenchTimer.h"
#include "Connection.h"
#include "Distances.h"
#include "OffscreenProgram.h"
#include "PriceLookup.h"
#include "PriceRanges.h"
#include "Schema.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TfrmCenniki.h"
#include "TfrmMiasta.h"
#include "Transaction.h"

#include <QComboBox>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int KilometreRanges = 60;
constexpr int KilogramRanges = 30;
constexpr int Groups = 10;
constexpr int Cities = 200;
constexpr int Calls = 1000;

void exec(Connection &connection, const QString &sql)
{
    Statement st(connection);
    st.add(sql);
    st.exec();
}

// Ranges of 25 km and 1000 kg, every cell of every group filled, and a
// distance between every pair of cities.
void seed(Connection &connection)
{
    Transaction transaction(connection);
    TransactionScope scope(transaction);
    for (int r = 1; r <= KilometreRanges; ++r)
        exec(connection, QStringLiteral("INSERT INTO CENNIKI_KRAJ_WIERSZE (ZAKRES_WOD, ZAKRES_WDO) "
                                        "VALUES (%1, %2)").arg((r - 1) * 25 + (r > 1)).arg(r * 25));
    for (int c = 1; c <= KilogramRanges; ++c)
        exec(connection, QStringLiteral("INSERT INTO CENNIKI_KRAJ_KOLUMNY (ZAKRES_KOD, ZAKRES_KDO) "
                                        "VALUES (%1, %2)")
                             .arg((c - 1) * 1000 + (c > 1))
                             .arg(c * 1000));
    for (int g = 1; g <= Groups; ++g)
        exec(connection, QStringLiteral("INSERT INTO CENNIKI_KRAJ_GRUPY (NAZWA, BLOKADA) "
                                        "VALUES ('Grupa %1', 0)").arg(g));
    exec(connection, QStringLiteral(
        "INSERT INTO CENNIKI_KRAJ (GRUPA, KWOTA, KILOGRAMY, KILOMETRY) "
        "SELECT g.G, 100 + w.ZAKRES_WDO * 2 + k.ZAKRES_KDO / 100, k.ID_CENNIKI_KRAJ_KOLUMNY, "
        "w.ID_CENNIKI_KRAJ_WIERSZE FROM CENNIKI_KRAJ_WIERSZE w, CENNIKI_KRAJ_KOLUMNY k, "
        "(SELECT 0 AS G FROM RDB$DATABASE UNION ALL SELECT ID_CENNIKI_KRAJ_GRUPY FROM "
        "CENNIKI_KRAJ_GRUPY) g"));
    for (int i = 1; i <= Cities; ++i)
        exec(connection, QStringLiteral("INSERT INTO MIASTA (NAZWA, KOD) VALUES ('Miasto %1', "
                                        "'%2-001')").arg(i, 3, 10, QLatin1Char('0')).arg(i % 100));
    exec(connection, QStringLiteral(
        "INSERT INTO ODLEGLOSCI (IDMIASTAOD, IDMIASTAVIA, IDMIASTADO, ODLEGLOSC) "
        "SELECT a.ID_MIASTA, 0, b.ID_MIASTA, 10 + MOD(a.ID_MIASTA * 7 + b.ID_MIASTA * 13, 900) "
        "FROM MIASTA a, MIASTA b WHERE a.ID_MIASTA < b.ID_MIASTA"));
    scope.commit();
}

// One SELECT (no index helps it) of a cell by its three keys: what a single
// round trip costs here, the floor under the three-step look-up.
double plainCell(Connection &connection, int group, int row, int column)
{
    Statement st(connection);
    st.add(QStringLiteral("select KWOTA from CENNIKI_KRAJ where KILOGRAMY=:k AND KILOMETRY=:w "
                          "AND GRUPA=:g"));
    st.bind(QStringLiteral("k"), column);
    st.bind(QStringLiteral("w"), row);
    st.bind(QStringLiteral("g"), group);
    st.exec();
    return st.atEnd() ? 0.0 : st.number(0);
}

} // namespace

int main(int argc, char **argv)
{
    OffscreenProgram program(argc, argv);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("pricing.fdb"));
    Schema::createDatabase(path);
    Connection connection;
    connection.open(path);
    BenchTimer timer;
    timer.measure(QStringLiteral("seed (19k cells, 19.9k routes)"), [&] { seed(connection); }, 1);
    Transaction transaction(connection);
    setSession(1, &connection, &transaction);

    QRandomGenerator random(20261122);
    std::vector<std::tuple<int, int, double>> asks;
    for (int i = 0; i < Calls; ++i)
        asks.emplace_back(int(random.bounded(Groups + 1)), int(random.bounded(1600)),
                          random.bounded(32000) / 1000.0);
    double sum = 0.0;
    const double lookUp = timer.measure(QStringLiteral("1000 price look-ups"), [&] {
        for (const auto &[group, km, tonnes] : asks)
            sum += PriceLookup::amount(connection, group, km, tonnes);
    });
    timer.measure(QStringLiteral("1000 price look-ups in one transaction"), [&] {
        TransactionScope scope(transaction);
        for (const auto &[group, km, tonnes] : asks)
            sum += PriceLookup::amount(connection, group, km, tonnes);
        scope.commit();
    });
    const double plain = timer.measure(QStringLiteral("1000 plain cell selects"), [&] {
        for (const auto &[group, km, tonnes] : asks)
            sum += plainCell(connection, group, km % KilometreRanges + 1,
                             int(tonnes) % KilogramRanges + 1);
    });
    const double trivial = timer.measure(QStringLiteral("1000 trivial selects"), [&] {
        for (int i = 0; i < Calls; ++i)
            sum += PriceRanges::totalCount(connection);
    });
    const double distances = timer.measure(QStringLiteral("1000 distance look-ups"), [&] {
        for (int i = 0; i < Calls; ++i) {
            const int a = int(random.bounded(Cities)) + 1;
            sum += Distances::lookup(connection, a, 0, Cities + 1 - a).value_or(0);
        }
    });
    timer.measure(QStringLiteral("open the price grid (60 x 30)"),
                  [&] { TfrmRODefault::create<TfrmCenniki>(nullptr); });
    auto grid = TfrmRODefault::create<TfrmCenniki>(nullptr);
    timer.measure(QStringLiteral("switch the grid's price list"), [&] {
        grid->cbCennik->setCurrentIndex(grid->cbCennik->currentIndex() % Groups + 1);
    });
    timer.measure(QStringLiteral("open the distance register (199 routes)"), [&] {
        auto cities = TfrmRODefault::create<TfrmMiasta>(nullptr);
        cities->CBMiasta->setCurrentIndex(1);
    });
    setSession(0, nullptr, nullptr);
    timer.print();
    std::printf("\nlook-up / plain select: %.2f; plain / trivial select: %.2f; "
                "per distance look-up: %.3f ms (checksum %.0f)\n",
                lookUp / plain, plain / trivial, distances / Calls, sum);
    return 0;
}
