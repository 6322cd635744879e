#include "StatementReport.h"

#include "CompanyData.h"
#include "MonthlyChart.h"

#include <memory>

using namespace CarrierListLayout;

namespace {

constexpr double ChartHeight = 95.0;

Qt::Alignment alignmentOf(const StatementColumn &column)
{
    return column.kind == StatementColumn::Text ? Qt::AlignLeft : Qt::AlignRight;
}

} // namespace

StatementReport::StatementReport(Connection &connection, StatementLayout layout, Reader reader)
    : m_connection(connection), m_layout(std::move(layout)), m_reader(std::move(reader)),
      m_report(m_layout.title)
{
    if (m_layout.landscape)
        m_report.setOrientation(QPageLayout::Landscape);
    m_report.setBeforePrint([this] { beforePrint(); });
    m_report.setNeedData(PrintoutLayout::rowsOf(m_data.lines, m_row));
    m_report.setTable([this] { return table(); });
    buildColumns();
    addHeading(m_report, [this] { return m_company; }, width());
    addColumnHeader(m_report, m_columns.data(), int(m_columns.size()));
    buildGroup();
    buildDetail();
    buildSummary();
    addPageFooter(m_report, width());
}

double StatementReport::width() const
{
    return m_report.pageSetup().contentRectMm().width();
}

void StatementReport::beforePrint()
{
    m_company = CompanyData::load(m_connection).NAZWA;
    m_data = m_reader();
    m_row = 0;
}

void StatementReport::buildColumns()
{
    // The columns point at their names: the names are all made first.
    for (std::size_t i = 0; i < m_layout.columns.size(); ++i)
        m_names.push_back("qrKolumna" + QByteArray::number(qulonglong(i)));
    double x = 0.0;
    for (std::size_t i = 0; i < m_layout.columns.size(); ++i) {
        const StatementColumn &column = m_layout.columns[i];
        m_columns.push_back(
            {m_names[i].constData(), column.caption, {x, column.width}, alignmentOf(column)});
        x += column.width;
    }
}

void StatementReport::buildGroup()
{
    ReportGroup &group = m_report.addGroup(QStringLiteral("QRGroupGrupa"), [this] {
        return QVariant(QString::number(line().groupKey) + u'|' + line().group);
    });
    group.setReprintHeaderOnNewPage(true);
    ReportBand &header = group.addHeader(QStringLiteral("QRBandGrupa"), 7);
    PrintoutLayout::value(header, QStringLiteral("qrGrupa"), QRectF(0, 1.5, width(), 5),
                          [this]() -> QString {
                              return m_layout.groupCaption + QStringLiteral(": ") + line().group;
                          })
        .setBold(true);
    ReportBand &footer = group.addFooter(QStringLiteral("QRBandRazem"), 7);
    buildTotals(footer, QStringLiteral("Razem"), &group);
}

void StatementReport::buildDetail()
{
    ReportBand &band = m_report.addBand(BandType::Detail, QStringLiteral("QRBandPozycja"), Line);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        addCell(band, m_columns[i], [this, i] {
            return StatementTable::cellText(m_layout.columns, line(), int(i));
        });
    }
}

void StatementReport::buildTotals(ReportBand &band, const QString &caption,
                                  const ReportGroup *group)
{
    const QString suffix = group ? QStringLiteral("Grupa") : QStringLiteral("Ogolem");
    std::vector<const ReportSum *> sums(m_columns.size(), nullptr);
    const ReportSum *lines = &m_report.addSum(QStringLiteral("Pozycje") + suffix,
                                              [] { return 0.0; }, group);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const StatementColumn &column = m_layout.columns[i];
        if (column.kind != StatementColumn::Money && column.kind != StatementColumn::Count)
            continue;
        sums[i] = &m_report.addSum(
            QStringLiteral("Suma%1").arg(i) + suffix,
            [this, i] { return line().values.value(int(i)).toDouble(); }, group);
    }
    // The caption takes the room left of the first column with a total.
    double captionWidth = width();
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (m_layout.columns[i].kind != StatementColumn::Text) {
            captionWidth = m_columns[i].span.x;
            break;
        }
    }
    band.addLine(QPointF(0, 0.5), QPointF(width(), 0.5));
    PrintoutLayout::value(band, QStringLiteral("qr") + suffix,
                          QRectF(1, 1, captionWidth - 2, band.height() - 1),
                          [caption, lines]() -> QString {
                              return caption
                                  + QStringLiteral(" (pozycji: %1):").arg(lines->count());
                          })
        .setBold(true);
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const StatementColumn &column = m_layout.columns[i];
        PrintoutLayout::Text text;
        if (sums[i]) {
            const ReportSum *sum = sums[i];
            text = [column, sum] { return StatementTable::cellText(column, sum->value()); };
        } else if (column.kind == StatementColumn::Margin) {
            const ReportSum *profit = sums.at(std::size_t(column.profit));
            const ReportSum *base = sums.at(std::size_t(column.base));
            text = [profit, base] {
                return StatementTable::marginText(
                    StatementTable::margin(profit->value(), base->value()));
            };
        } else {
            continue;
        }
        const PrintoutLayout::ColumnSpan &span = m_columns[i].span;
        PrintoutLayout::value(band, QStringLiteral("qrSuma%1").arg(i) + suffix,
                              QRectF(span.x + 1, 1, span.width - 2, band.height() - 1),
                              std::move(text))
            .setBold(true)
            .setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
}

void StatementReport::buildSummary()
{
    ReportBand &band = m_report.addBand(BandType::Summary, QStringLiteral("QRBandOgolem"), 9);
    buildTotals(band, QStringLiteral("Ogółem"), nullptr);
    if (!m_layout.chart)
        return;
    band.setHeight(9 + ChartHeight);
    band.addDrawing(QRectF(0, 12, width(), ChartHeight - 4),
                    [this]() -> std::shared_ptr<const ReportDrawing> {
                        return std::make_shared<MonthlyChart>(m_data.months);
                    });
}

ReportTable StatementReport::table() const
{
    ReportTable table;
    table.header << m_layout.groupCaption;
    for (const StatementColumn &column : m_layout.columns)
        table.header << QString::fromUtf8(column.caption);
    for (const StatementLine &line : m_data.lines)
        table.rows.push_back(StatementTable::tableRow(m_layout.columns, line));
    return table;
}
