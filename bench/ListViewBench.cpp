#include "ListViewBench.h"

#include "BenchTimer.h"
#include "ColumnValues.h"
#include "Format.h"
#include "MessageService.h"
#include "TframeListView.h"
#include "TfrmRODefault.h"

#include <QBoxLayout>
#include <QDate>
#include <QLineEdit>
#include <QTemporaryDir>

#include <cstdio>

namespace {

constexpr int Columns = 21;

// Answers every box with its default button, so that the frame's own sum
// and export can run unattended.
class SilentMessages final : public MessageService
{
public:
    Button ask(const QString &, const QString &, Icon, Buttons, Button defaultButton) override
    {
        return defaultButton;
    }
    void showMessage(const QString &) override {}
};

class PathPrompt final : public FilePrompts
{
public:
    explicit PathPrompt(QString path) : m_path(std::move(path)) {}
    QString saveFileName(QWidget *, const FilePrompt &) override { return m_path; }
    QString openFileName(QWidget *, const FilePrompt &) override { return m_path; }

private:
    QString m_path;
};

// Rows shaped like the incoming orders register: numbers, dates, names
// that repeat as clients and cities do, amounts with Polish separators.
std::vector<QStringList> makeRows(int count)
{
    static const char *const clients[]
        = {"Agromax Sp. z o.o.", "Trans-Bud S.A.",  "Zakład Mięsny Łuków", "Hurtownia Żak",
           "Mleczarnia Wąchock", "Stal-Pol Kraków", "Ogrodnictwo Ćmielów", "Drob-Ex Ełk"};
    static const char *const cities[]
        = {"Kraków",   "Gdańsk",    "Łódź",    "Poznań", "Wrocław",
           "Szczecin", "Białystok", "Rzeszów", "Zamość", "Świnoujście"};
    std::vector<QStringList> rows;
    rows.reserve(count);
    const QDate first(2024, 1, 1);
    for (int i = 0; i < count; ++i) {
        const unsigned mix = static_cast<unsigned>(i) * 2654435761u;
        QStringList row;
        row.reserve(Columns);
        row << QStringLiteral("%1").arg(i + 1, 8, 10, QLatin1Char('0'))
            << Format::date(first.addDays(static_cast<int>(mix % 400)))
            << QString::fromUtf8(clients[mix % 8]) + QStringLiteral(" %1").arg(mix % 500)
            << QString::fromUtf8(cities[(mix >> 3) % 10])
            << QString::fromUtf8(cities[(mix >> 7) % 10])
            << Format::number((mix % 900000) / 100.0, u"#,##0.00")
            << Format::number(mix % 1500, u"#,##0") << QStringLiteral("Kierowca %1").arg(mix % 300)
            << QStringLiteral("KR %1").arg(10000 + mix % 90000);
        while (row.size() < Columns)
            row << QStringLiteral("Uwagi %1/%2").arg(i).arg(row.size());
        rows.push_back(std::move(row));
    }
    return rows;
}

class BenchRegister : public TfrmRODefault
{
public:
    BenchRegister()
    {
        frame = new TframeListView(this, pnlClient, QStringLiteral("frameListView1"));
        auto *layout = new QVBoxLayout(pnlClient);
        layout->addWidget(frame);
        for (int column = 0; column < Columns; ++column)
            frame->lvMain->addColumn(QStringLiteral("Kolumna %1").arg(column), 90);
        frame->numericColumns() << QStringLiteral("Kolumna 5") << QStringLiteral("Kolumna 6");
        frame->dateColumns() << QStringLiteral("Kolumna 1");
        resize(1200, 700);
    }

    void fill(const std::vector<QStringList> &rows)
    {
        TListView *list = frame->lvMain;
        list->beginUpdate();
        list->clear();
        for (size_t i = 0; i < rows.size(); ++i)
            list->addItem(rows[i].constFirst(), rows[i].mid(1), static_cast<int>(i + 1));
        list->endUpdate();
    }

    TframeListView *frame;
};

} // namespace

void benchListView(BenchTimer &timer, int rowCount)
{
    auto previousMessages = MessageServices::install(std::make_unique<SilentMessages>());
    QTemporaryDir dir;
    const QString csv = dir.filePath(QStringLiteral("lista.csv"));
    auto previousPrompts = FilePromptService::install(std::make_unique<PathPrompt>(csv));

    std::vector<QStringList> rows;
    timer.measure(QStringLiteral("generate rows in memory (not the frame)"),
                  [&] { rows = makeRows(rowCount); }, 1);
    auto form = TfrmRODefault::create<BenchRegister>();
    form->show();
    TframeListView &frame = *form->frame;
    TListView &list = *frame.lvMain;

    timer.measure(QStringLiteral("fill %1 rows x %2 columns").arg(rowCount).arg(Columns),
                  [&] { form->fill(rows); });
    timer.measure(
        QStringLiteral("sort numeric column (amount)"), [&] { frame.sortByColumnClick(5); }, 3,
        [&] { form->fill(rows); });
    timer.measure(QStringLiteral("sort date column"), [&] { frame.sortByColumnClick(1); }, 3,
                  [&] { form->fill(rows); });
    timer.measure(QStringLiteral("sort text column (client, 4000 distinct)"),
                  [&] { frame.sortByColumnClick(2); }, 3, [&] { form->fill(rows); });
    timer.measure(
        QStringLiteral("sort text column (all distinct)"), [&] { frame.sortByColumnClick(20); }, 3,
        [&] { form->fill(rows); });

    form->fill(rows);
    const QString wanted = rows[rows.size() - 10].at(12);
    timer.measure(QStringLiteral("search a text near the end (column 12)"), [&] {
        TframeListView::setSearchColumn(12);
        list.setSelectedIndex(0);
        frame.acSearchOnKey->setChecked(true);
        frame.edSearch->setText(wanted);
        frame.btnSearchClick();
    });
    if (list.selectedIndex() != static_cast<int>(rows.size()) - 10)
        std::fprintf(stderr, "search found row %d\n", list.selectedIndex());

    timer.measure(QStringLiteral("sum a column (amount)"), [&] {
        TframeListView::setSearchColumn(5);
        frame.sumColumn();
    });
    timer.measure(QStringLiteral("export to CSV"), [&] { frame.exportToFile(); });

    form.reset();
    FilePromptService::install(std::move(previousPrompts));
    MessageServices::install(std::move(previousMessages));
}
