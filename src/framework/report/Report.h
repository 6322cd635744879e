#pragma once

#include "ReportBand.h"
#include "ReportDataSource.h"
#include "ReportGroup.h"
#include "ReportPage.h"
#include "ReportPageSetup.h"
#include "ReportSum.h"
#include "ReportTable.h"

#include <QString>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

class Statement;
class StatementCursor;

// A banded report: page setup, bands, groups, sums and the rows that drive
// the detail band. prepare() lays it out into pages of primitives; the
// outputs paint those pages onto a preview, a printer or a PDF file.
class Report
{
public:
    explicit Report(const QString &title = QString());
    ~Report();
    Report(const Report &) = delete;
    Report &operator=(const Report &) = delete;

    const QString &title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    ReportPageSetup &pageSetup() { return m_pageSetup; }
    const ReportPageSetup &pageSetup() const { return m_pageSetup; }
    void setOrientation(QPageLayout::Orientation orientation)
    {
        m_pageSetup.orientation = orientation;
    }

    // Bands of one type print in the order they were added. Group headers
    // and footers belong to their group (addGroup).
    ReportBand &addBand(BandType type, const QString &name, double heightMm);
    // Groups nest in the order they were added, the first outermost.
    ReportGroup &addGroup(const QString &name, ReportGroup::KeyFunction key);
    ReportSum &addSum(const QString &name, ReportSum::Expression expression,
                      const ReportGroup *resetGroup = nullptr);

    // Any band by name, group bands included; throws std::invalid_argument.
    ReportBand &band(const QString &name);
    std::vector<ReportBand *> bands(BandType type) const;
    const std::vector<std::unique_ptr<ReportGroup>> &groups() const { return m_groups; }
    const std::vector<std::unique_ptr<ReportSum>> &sums() const { return m_sums; }

    void setDataSource(std::unique_ptr<ReportDataSource> source);
    void setNeedData(std::function<bool()> moreData);
    StatementCursor &setCursor(Statement &statement);
    ReportDataSource *dataSource() const { return m_dataSource.get(); }

    // Runs before each layout, e.g. to reset the report's own counters.
    void setBeforePrint(std::function<void()> beforePrint)
    {
        m_beforePrint = std::move(beforePrint);
    }
    // The report's lines as a table, for saving them to a spreadsheet from
    // the preview; asked when the user saves, after the report was laid out.
    void setTable(std::function<ReportTable()> table) { m_table = std::move(table); }
    bool hasTable() const { return static_cast<bool>(m_table); }
    ReportTable table() const { return m_table ? m_table() : ReportTable{}; }

    // Without rows a report prints its headers and summary, or nothing.
    bool printIfEmpty() const { return m_printIfEmpty; }
    void setPrintIfEmpty(bool print) { m_printIfEmpty = print; }

    // Lays the report out again; errors of the data source propagate.
    const std::vector<ReportPage> &prepare();
    // Lays the report out, giving each page away as soon as nothing on it
    // can change any more, so that a long report can be written while it
    // is still being laid out; pages() stays empty. Errors of the data
    // source propagate.
    void prepare(const std::function<void(ReportPage &&page)> &takePage);
    // The same, but a failure is shown to the user and answered with false.
    bool prepareShowingErrors();
    const std::vector<ReportPage> &pages() const { return m_pages; }
    // Hands the laid-out pages over to a caller that keeps them longer than
    // the report; a long report is not held twice.
    std::vector<ReportPage> takePages() { return std::exchange(m_pages, {}); }
    // The page being laid out, for before-print callbacks.
    int pageNumber() const { return m_pageNumber; }

    // Through the installed report output.
    bool preview();
    bool print();
    // Headless: lays out and writes a PDF file, no window involved. A
    // failure is shown to the user and answered with false.
    bool exportPdf(const QString &path);

private:
    friend class ReportPreRenderer;

    QString m_title;
    ReportPageSetup m_pageSetup;
    std::vector<std::unique_ptr<ReportBand>> m_bands;
    std::vector<std::unique_ptr<ReportGroup>> m_groups;
    std::vector<std::unique_ptr<ReportSum>> m_sums;
    std::unique_ptr<ReportDataSource> m_dataSource;
    std::function<void()> m_beforePrint;
    std::function<ReportTable()> m_table;
    bool m_printIfEmpty = true;
    std::vector<ReportPage> m_pages;
    int m_pageNumber = 0;
};
