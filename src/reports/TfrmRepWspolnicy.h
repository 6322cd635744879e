#pragma once

#include "PartnersSelection.h"
#include "Report.h"
#include "Statement.h"

#include <QHash>

#include <memory>

class EngineRows;
class QWidget;

// The partners report: invoiced incoming orders of a period with their
// rate, cost, profit and margin on cost, the profit split in two halves,
// on a lying A4. The query runs again at every layout, so a report
// printed from its preview reads the data afresh.
class TfrmRepWspolnicy
{
public:
    explicit TfrmRepWspolnicy(Connection &connection);
    ~TfrmRepWspolnicy();

    // What the second entry point and the register's hidden entry do:
    // asks on the session's connection and previews the report when the
    // user confirms; nothing when cancelled.
    static void run(QWidget *owner);

    // Asks for the selection in TfrmWyborWspolnika and, when the user
    // confirms it, builds the query and the title. Whether confirmed.
    bool FormCreate(QWidget *owner);
    // The same without asking: haulix-print and tests choose directly.
    void select(const PartnersSelection &selection);

    // 1 after a confirmed selection, as the entry point reads it.
    int confirmed() const { return m_confirmed; }
    Report &QuickRep1() { return m_report; }
    bool Preview() { return m_report.preview(); }

private:
    void QuickRep1BeforePrint();
    bool nextRow();
    void buildHeader();
    void buildDetail();
    void buildSummary();
    void buildFooter();
    double number(int column) const;
    QString field(const QString &column) const;

    Connection &m_connection;
    Statement Table1;
    // The rows of the open query; a year of a large company is tens of
    // thousands of them, so they come straight from the engine.
    std::unique_ptr<EngineRows> m_rows;
    // Its columns by name, looked up for every cell of every row.
    QHash<QString, int> m_columns;
    QString m_title;
    int m_confirmed = 0;
    int m_line = 0;
    bool m_rowPending = false;
    // Column indexes of the open query.
    int m_rate = -1;
    int m_cost = -1;
    Report m_report;
};
