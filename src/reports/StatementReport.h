#pragma once

#include "CarrierListLayout.h"
#include "Report.h"
#include "StatementLayout.h"

#include <QByteArray>

#include <functional>
#include <vector>

class Connection;

// A statement printed from its layout: the company's name and the title,
// ruled column heads, a heading for each group, the lines, each group's
// totals and the grand total, the monthly chart where the layout asks for
// one, and the page numbers. The lines are read afresh for each layout;
// the preview can save them as CSV.
class StatementReport
{
public:
    using Reader = std::function<StatementData()>;

    StatementReport(Connection &connection, StatementLayout layout, Reader reader);
    virtual ~StatementReport() = default;

    Report &report() { return m_report; }
    const StatementLayout &layout() const { return m_layout; }
    // What the last layout printed.
    const StatementData &data() const { return m_data; }

    bool Preview() { return m_report.preview(); }
    bool Print() { return m_report.print(); }

    // The width inside the margins of the sheet the layout takes.
    double width() const;

private:
    void beforePrint();
    void buildColumns();
    void buildGroup();
    void buildDetail();
    void buildTotals(ReportBand &band, const QString &caption, const ReportGroup *group);
    void buildSummary();
    ReportTable table() const;
    const StatementLine &line() const { return m_data.lines.at(m_row - 1); }

    Connection &m_connection;
    StatementLayout m_layout;
    Reader m_reader;
    QString m_company;
    StatementData m_data;
    std::size_t m_row = 0;
    std::vector<QByteArray> m_names;
    std::vector<CarrierListLayout::Column> m_columns;
    Report m_report;
};
