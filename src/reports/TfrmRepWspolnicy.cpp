#include "TfrmRepWspolnicy.h"

#include "EngineRows.h"
#include "Format.h"
#include "PartnersLine.h"
#include "ReportColumns.h"
#include "SessionContext.h"
#include "TfrmWyborWspolnika.h"

#include <QDate>

using namespace ReportColumns;

namespace {

constexpr double Width = 277.0;

enum ColumnIndex {
    Lp, Kontrahent, FakDwyst, Trasa, Numer, Stawka, Koszt, Zysk, Marza, MarzaWart, WW,
    Przewoznik, ColumnCount
};
constexpr Column Columns[ColumnCount] = {
    {"qrLp", "L.p.", 0, 10, Qt::AlignRight},
    {"qrKontrahent", "Zleceniodawca", 10, 36},
    {"qrFakDwyst", "DataWyFak.", 46, 20},
    {"qrTrasa", "Trasa", 66, 42},
    {"qrNumer", "Nr zlec.", 108, 16, Qt::AlignRight},
    {"qrStawka", "Stawka netto", 124, 22, Qt::AlignRight},
    {"qrKoszt", "Koszt netto", 146, 22, Qt::AlignRight},
    {"qrZysk", "Zysk netto", 168, 22, Qt::AlignRight},
    {"qrMarza", "Marża nett", 190, 18, Qt::AlignRight},
    {"qrMarzaWart", "Marża wart.Y", 208, 20, Qt::AlignRight},
    {"qrWW", "W/W", 228, 20, Qt::AlignRight},
    {"qrPrzewoznik", "Przewoźnik", 248, 29},
};

QString money(double amount)
{
    return Format::number(amount, u"#,##0.00");
}

QString percent(double margin)
{
    return Format::number(margin, u"#,##0.00%");
}

} // namespace

TfrmRepWspolnicy::TfrmRepWspolnicy(Connection &connection)
    : m_connection(connection), Table1(connection),
      m_report(QStringLiteral("Zestawienie zleceń w podziale na kontrahenta"))
{
    m_report.setOrientation(QPageLayout::Landscape);
    m_report.setPrintIfEmpty(true);
    m_report.setBeforePrint([this] { QuickRep1BeforePrint(); });
    m_report.setNeedData([this] { return nextRow(); });
    buildHeader();
    buildDetail();
    buildSummary();
    buildFooter();
}

TfrmRepWspolnicy::~TfrmRepWspolnicy() = default;

void TfrmRepWspolnicy::run(QWidget *owner)
{
    Connection *database = session().Database;
    if (!database)
        return;
    TfrmRepWspolnicy report(*database);
    if (report.FormCreate(owner) && report.confirmed() == 1)
        report.Preview();
}

bool TfrmRepWspolnicy::FormCreate(QWidget *owner)
{
    const auto dialog = TfrmRODefault::create<TfrmWyborWspolnika>(owner);
    m_confirmed = dialog->showModal() == TfrmRODefault::mrOk ? 1 : 0;
    if (m_confirmed == 1)
        select(dialog->selection());
    return m_confirmed == 1;
}

void TfrmRepWspolnicy::select(const PartnersSelection &selection)
{
    selection.prepare(Table1, PartnersSelection::ownShortName(m_connection));
    m_title = selection.title();
    m_confirmed = 1;
}

void TfrmRepWspolnicy::QuickRep1BeforePrint()
{
    m_rows.reset();
    Table1.close();
    m_rows = std::make_unique<EngineRows>(Table1);
    m_columns.clear();
    for (int column = 0; column < m_rows->columnCount(); ++column)
        m_columns.insert(m_rows->columnName(column), column);
    m_rate = m_columns.value(QStringLiteral("STAWKA_RAZEM"), -1);
    m_cost = m_columns.value(QStringLiteral("KOSZTRAZEM"), -1);
    m_line = 0;
    m_rowPending = m_rows->next();
    m_report.band(QStringLiteral("QRBandDetail")).setEnabled(m_rowPending);
}

bool TfrmRepWspolnicy::nextRow()
{
    // The first row is current once the query is open.
    if (m_rowPending)
        m_rowPending = false;
    else if (!m_rows->next())
        return false;
    ++m_line;
    return true;
}

double TfrmRepWspolnicy::number(int column) const
{
    return m_rows->number(column);
}

QString TfrmRepWspolnicy::field(const QString &column) const
{
    return m_rows->string(m_columns.value(column, -1));
}

void TfrmRepWspolnicy::buildHeader()
{
    ReportBand &band = m_report.addBand(BandType::PageHeader, QStringLiteral("QRBandHeader"), 16);
    addCaption(band, QStringLiteral("QRLabelNaglowek"), QRectF(0, 0, 150, 6),
               QStringLiteral("Zestawienie zleceń w podziale na kontrahenta."))
        .setPointSize(10);
    band.addLabel(QStringLiteral("QRLabelData"), QRectF(Width - 90, 0, 90, 6))
        .setValue([]() -> QString {
            return QStringLiteral("Data wykonania raportu: ") + Format::date(QDate::currentDate());
        })
        .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    band.addLabel(QStringLiteral("lblTytul"), QRectF(0, 8, Width, 6), QStringLiteral("---"))
        .setValue([this] { return m_title; })
        .setBold(true);

    ReportBand &heads = m_report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandKolumny"), 7);
    addHeads(heads, Columns, Width);
}

void TfrmRepWspolnicy::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandDetail"), Line);
    const auto text = [this](const char *column) {
        return [this, name = QString::fromLatin1(column)] { return field(name); };
    };
    const auto line = [this] { return PartnersLine{number(m_rate), number(m_cost)}; };
    addCell(band, Columns[Lp], [this] { return QString::number(m_line); });
    addCell(band, Columns[Kontrahent], text("KONTRAHENT"));
    addCell(band, Columns[FakDwyst], [this] {
        return Format::date(m_rows->dateTime(m_columns.value(QStringLiteral("FAK_DWYST"), -1)));
    });
    addCell(band, Columns[Trasa], [this]() -> QString {
        return field(QStringLiteral("MIASTOOD")) + QStringLiteral(" - ")
            + field(QStringLiteral("MIASTODO"));
    });
    addCell(band, Columns[Numer], text("NUMER"));
    addCell(band, Columns[Stawka], [line] { return money(line().rate); });
    addCell(band, Columns[Koszt], [line] { return money(line().cost); });
    addCell(band, Columns[Zysk], [line] { return money(line().profit()); });
    addCell(band, Columns[Marza], [line] { return percent(line().margin()); });
    addCell(band, Columns[MarzaWart], [line] { return percent(line().halfMargin()); });
    addCell(band, Columns[WW], [line] { return money(line().half()); });
    addCell(band, Columns[Przewoznik], text("PRZEWOZNIK"));
}

void TfrmRepWspolnicy::buildSummary()
{
    const auto line = [this] { return PartnersLine{number(m_rate), number(m_cost)}; };
    const std::pair<ColumnIndex, ReportSum::Expression> sums[] = {
        {Stawka, [line] { return line().rate; }},
        {Koszt, [line] { return line().cost; }},
        {Zysk, [line] { return line().profit(); }},
        {WW, [line] { return line().half(); }},
    };
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandSummary"), 8);
    band.addLine(QPointF(0, 0.5), QPointF(Width, 0.5));
    addCaption(band, QStringLiteral("QRLabelRazem"), QRectF(0.8, 1, 60, band.height() - 1),
               QStringLiteral("RAZEM"));
    for (const auto &[index, expression] : sums) {
        const Column &column = Columns[index];
        const QString name = QLatin1String(column.name).mid(2);
        const ReportSum &sum = m_report.addSum(QStringLiteral("Suma") + name, expression);
        band.addLabel(QStringLiteral("qrSuma") + name,
                      QRectF(column.x + 0.8, 1, column.width - 1.6, band.height() - 1))
            .setValue([&sum] { return money(sum.value()); })
            .setBold(true)
            .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void TfrmRepWspolnicy::buildFooter()
{
    ReportBand &band = m_report.addBand(BandType::PageFooter, QStringLiteral("QRBandFooter"), 7);
    band.addLabel(QStringLiteral("QRSysData"), QRectF(Width - 40, 2, 40, Line))
        .setValue([this]() -> QString {
            // Without the number of pages, a page is done once it is laid
            // out, and a long report is written meanwhile.
            return QStringLiteral("Strona ") + QString::number(m_report.pageNumber());
        })
        .setAlignment(Qt::AlignRight);
}
