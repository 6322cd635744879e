// A 2000-row banded report: laid out from rows in memory and from a query
// over an embedded database, then written to PDF.

#include "Connection.h"
#include "Report.h"
#include "ReportPainter.h"
#include "Schema.h"
#include "Statement.h"
#include "StatementCursor.h"
#include "Transaction.h"

#include <QGuiApplication>
#include <QLocale>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

constexpr int rowCount = 2000;

struct OrderRow
{
    int number;
    QString client;
    QString route;
    double rate;
    double cost;
};

std::vector<OrderRow> makeRows()
{
    const QStringList clients{QStringLiteral("Przewozy Łódzkie"), QStringLiteral("Gdańska Żegluga"),
                              QStringLiteral("Śląskie Kruszywa"), QStringLiteral("Ośrodek Źródło")};
    std::vector<OrderRow> rows;
    for (int i = 0; i < rowCount; ++i) {
        rows.push_back({i + 1, clients.at(i / 500),
                        QStringLiteral("Kraków - Poznań %1").arg(i % 37), 1000.0 + i * 1.5,
                        700.0 + i});
    }
    return rows;
}

QString money(const QVariant &value)
{
    return QLocale().toString(value.toDouble(), 'f', 2);
}

// Landscape list in the shape of the partners report: twelve columns a row,
// a group per client with its sums, a summary and numbered pages.
class OrdersReport
{
public:
    using Field = std::function<QVariant(int column)>;

    OrdersReport()
    {
        m_report.setOrientation(QPageLayout::Landscape);
        ReportBand &header = m_report.addBand(BandType::PageHeader, QStringLiteral("naglowek"), 12);
        header.addLabel(QStringLiteral("tytul"), QRectF(0, 0, 200, 6),
                        QStringLiteral("Zestawienie zleceń w podziale na kontrahenta."))
            .setBold(true);
        ReportBand &columns
            = m_report.addBand(BandType::ColumnHeader, QStringLiteral("kolumny"), 6);
        ReportBand &detail = m_report.addBand(BandType::Detail, QStringLiteral("wiersz"), 5);
        for (int column = 0; column < 12; ++column) {
            const QRectF box(column * 23.0, 0, 23.0, 5);
            columns
                .addLabel(QStringLiteral("k%1").arg(column), box,
                          QStringLiteral("Kolumna %1").arg(column))
                .setFrame(Qt::BottomEdge);
            ReportLabel &cell = detail.addLabel(QStringLiteral("w%1").arg(column), box)
                                    .setValue([this, column] { return m_field(column); });
            if (column >= 3)
                cell.setFormatter(money).setAlignment(Qt::AlignRight);
        }
        m_group = &m_report.addGroup(QStringLiteral("klient"), [this] { return m_field(1); });
        const ReportSum &groupSum = m_report.addSum(
            QStringLiteral("grupa"), [this] { return m_field(3).toDouble(); }, m_group);
        m_group->addFooter(QStringLiteral("stopka"), 6)
            .addLabel(QStringLiteral("suma"), QRectF(69, 0, 23, 6))
            .setValue(groupSum.valueFunction())
            .setFormatter(money);
        const ReportSum &total
            = m_report.addSum(QStringLiteral("razem"), [this] { return m_field(3).toDouble(); });
        m_report.addBand(BandType::Summary, QStringLiteral("podsumowanie"), 6)
            .addLabel(QStringLiteral("razem"), QRectF(69, 0, 23, 6))
            .setValue(total.valueFunction())
            .setFormatter(money);
        m_report.addBand(BandType::PageFooter, QStringLiteral("stopka"), 6)
            .addLabel(QStringLiteral("strona"), QRectF(200, 0, 76, 6))
            .setPageText([](int page, int count) {
                return QStringLiteral("Strona %1 z %2").arg(page).arg(count);
            });
    }

    Report &report() { return m_report; }
    void setField(Field field) { m_field = std::move(field); }

private:
    Report m_report;
    ReportGroup *m_group = nullptr;
    Field m_field;
};

// Rows from memory through a need-data counter.
struct MemoryOrders
{
    MemoryOrders() : rows(makeRows())
    {
        orders.report().setBeforePrint([this] { index = 0; });
        orders.report().setNeedData(
            [this] { return index < rows.size() ? (++index, true) : false; });
        orders.setField([this](int column) -> QVariant {
            const OrderRow &row = rows[index - 1];
            switch (column) {
            case 0: return row.number;
            case 1: return row.client;
            case 2: return row.route;
            case 3: return row.rate;
            case 4: return row.cost;
            default: return row.rate - row.cost + column;
            }
        });
    }

    std::vector<OrderRow> rows;
    size_t index = 0;
    OrdersReport orders;
};

// The same rows in an embedded database, read by a query cursor.
struct DatabaseOrders
{
    DatabaseOrders() : statement(connection)
    {
        const QString path = dir.filePath(QStringLiteral("bench.fdb"));
        Schema::createDatabase(path);
        connection.open(path);
        Transaction transaction(connection);
        {
            TransactionScope scope(transaction);
            Statement insert(connection);
            insert.add(QStringLiteral("INSERT INTO TARYFYPRZEWOZNIKA"))
                .add(QStringLiteral("(NUMER_STAWKI, NAZWA_STAWKI, KWOTA_ZA_KM, KWOTA_ZA_GODZ)"))
                .add(QStringLiteral("VALUES (:aNUMER, :aNAZWA, :aKM, :aGODZ)"));
            for (const OrderRow &row : makeRows()) {
                insert.bind(QStringLiteral("aNUMER"), row.number);
                insert.bind(QStringLiteral("aNAZWA"), row.client);
                insert.bind(QStringLiteral("aKM"), row.rate);
                insert.bind(QStringLiteral("aGODZ"), row.cost);
                insert.exec();
            }
            scope.commit();
        }
        statement
            .add(QStringLiteral("SELECT NUMER_STAWKI, NAZWA_STAWKI, KWOTA_ZA_KM, KWOTA_ZA_GODZ"))
            .add(QStringLiteral("FROM TARYFYPRZEWOZNIKA ORDER BY NUMER_STAWKI"));
        StatementCursor &cursor = orders.report().setCursor(statement);
        const QStringList names{QStringLiteral("NUMER_STAWKI"), QStringLiteral("NAZWA_STAWKI"),
                                QStringLiteral("NAZWA_STAWKI"), QStringLiteral("KWOTA_ZA_KM"),
                                QStringLiteral("KWOTA_ZA_GODZ")};
        orders.setField([&cursor, names](int column) {
            return cursor.value(names.at(qMin(column, int(names.size()) - 1)));
        });
    }

    QTemporaryDir dir;
    Connection connection;
    Statement statement;
    OrdersReport orders;
};

template<typename Orders>
void preRender(benchmark::State &state)
{
    Orders source;
    size_t pages = 0;
    for (auto _ : state)
        pages = source.orders.report().prepare().size();
    state.counters["pages"] = static_cast<double>(pages);
}

void writePdf(benchmark::State &state)
{
    MemoryOrders memory;
    Report &report = memory.orders.report();
    report.prepare();
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("zlecenia.pdf"));
    for (auto _ : state)
        ReportPainter::writePdf(path, report.pages(), report.pageSetup(), report.title());
    state.counters["pages"] = static_cast<double>(report.pages().size());
}

void preRenderAndWritePdf(benchmark::State &state)
{
    MemoryOrders memory;
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("zlecenia.pdf"));
    for (auto _ : state) {
        if (!memory.orders.report().exportPdf(path))
            state.SkipWithError("PDF not written");
    }
}

} // namespace

BENCHMARK(preRender<MemoryOrders>)->Name("preRenderFromMemory")->Unit(benchmark::kMillisecond);
BENCHMARK(preRender<DatabaseOrders>)->Name("preRenderFromQuery")->Unit(benchmark::kMillisecond);
BENCHMARK(writePdf)->Unit(benchmark::kMillisecond);
BENCHMARK(preRenderAndWritePdf)->Unit(benchmark::kMillisecond);

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
