// haulix-bench-writes: 1,000 order updates through the order table object,
// each preparing a statement of its own (as every write of a table object
// did before the connection kept its statements) against the kept
// statement, outside a transaction (every update commits on its own) and
// inside one scope; and 1,000 SelectWhere calls with and without the probe
// statement that once learnt the column's type.
//
//   haulix-bench-writes [--updates N] [--repetitions R]
//
// The variants run in turn within each repetition, so that a busy machine
// slows all of them alike; the figures are medians, the ratios are of
// medians measured in the same run.
#include "BenchTimer.h"
#include "CountOptions.h"
#include "Median.h"
#include "OffscreenProgram.h"
#include "SeededDatabase.h"
#include "Statement.h"
#include "TableStatements.h"
#include "Transaction.h"
#include "TTowaryObj.h"
#include "TZlecenia_przychObj.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <map>

namespace {

struct Arguments
{
    int updates = 1000;
    int repetitions = 5;
};

// The update as a table object wrote it before: a statement of its own,
// prepared for this one record.
void updateWithOwnStatement(const TZlecenia_przychObj &order)
{
    const auto &d = TZlecenia_przychObj::description();
    Statement st(order.connection());
    for (const QString &line : TableStatements::updateLines(d.info.table, d.columnNames(), d.info.key))
        st.add(line);
    st.bind(QStringLiteral("a") + d.info.key, order.ID_ZLECENIA_PRZYCH);
    order.bindColumns(st);
    st.exec();
}

void probe(Connection &connection, const QString &field)
{
    Statement st(connection);
    st.add(TableStatements::probeLine(TTowaryObj::description().info.table, field));
    st.exec();
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments arguments;
    if (!parseCountOptions(program.arguments(),
                           {{QStringLiteral("--updates"), &arguments.updates},
                            {QStringLiteral("--repetitions"), &arguments.repetitions}})) {
        std::fprintf(stderr, "Użycie: haulix-bench-writes [--updates N] [--repetitions R]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        Connection connection;
        openSeededDatabase(connection, scratch.filePath(QStringLiteral("writes-bench.fdb")),
                           arguments.updates);
        Transaction transaction(connection);
        std::vector<TZlecenia_przychObj> orders = TZlecenia_przychObj(connection).SelectClause(
            QStringLiteral("ORDER BY ID_ZLECENIA_PRZYCH ROWS %1").arg(arguments.updates));
        std::printf("%zu orders, forced writes on, median of %d runs\n\n", orders.size(),
                    arguments.repetitions);

        const auto updateAll = [&](bool kept) {
            for (TZlecenia_przychObj &order : orders) {
                order.ZAMKNIETE = 1 - order.ZAMKNIETE;
                if (kept) {
                    if (!order.Update())
                        throw DbError(QStringLiteral("Zlecenie nie zostało poprawione."));
                } else {
                    updateWithOwnStatement(order);
                }
            }
        };
        const auto selectAll = [&](bool probing) {
            TransactionScope scope(transaction);
            const QString field = QStringLiteral("ID_ZLECENIA");
            for (const TZlecenia_przychObj &order : orders) {
                if (probing)
                    probe(connection, field);
                TTowaryObj(connection).SelectWhere(field, opEqual, order.ID_ZLECENIA_PRZYCH);
            }
            scope.commit();
        };
        struct Variant
        {
            QString name;
            std::function<void()> run;
        };
        const QString count = QString::number(orders.size());
        const std::vector<Variant> variants{
            {count + QStringLiteral(" updates, own statement, no scope"), [&] { updateAll(false); }},
            {count + QStringLiteral(" updates, kept statement, no scope"), [&] { updateAll(true); }},
            {count + QStringLiteral(" updates, own statement, one scope"),
             [&] {
                 TransactionScope scope(transaction);
                 updateAll(false);
                 scope.commit();
             }},
            {count + QStringLiteral(" updates, kept statement, one scope"),
             [&] {
                 TransactionScope scope(transaction);
                 updateAll(true);
                 scope.commit();
             }},
            {count + QStringLiteral(" SelectWhere, with the type probe"), [&] { selectAll(true); }},
            {count + QStringLiteral(" SelectWhere, type from the columns"), [&] { selectAll(false); }},
        };
        std::map<QString, std::vector<double>> times;
        for (int repetition = 0; repetition < arguments.repetitions; ++repetition) {
            for (const Variant &variant : variants) {
                QElapsedTimer timer;
                timer.start();
                variant.run();
                times[variant.name].push_back(double(timer.nsecsElapsed()) / 1e6);
            }
        }
        BenchTimer table;
        for (const Variant &variant : variants)
            table.note(variant.name, median(times[variant.name]));
        const auto ratio = [&](const char *what, int before, int after) {
            std::printf("%-58s %6.2f x\n", what,
                        median(times[variants[before].name]) / median(times[variants[after].name]));
        };
        std::printf("\nratios of medians of this run (before / after):\n");
        ratio("updates, no scope: own statement / kept statement", 0, 1);
        ratio("updates, one scope: own statement / kept statement", 2, 3);
        ratio("updates, kept statement: no scope / one scope", 1, 3);
        ratio("updates: own statement, no scope / kept, one scope", 0, 3);
        ratio("SelectWhere: with the probe / type from the columns", 4, 5);
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
