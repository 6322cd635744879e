#pragma once

#include "ReportOutput.h"

#include <QString>

#include <vector>

// Writes every previewed or printed report to a PDF file of its own in a
// directory, without any window: for tests, tools and machines without a
// screen. Remembers what it delivered.
class PdfFileReportOutput final : public ReportOutput
{
public:
    enum class Kind { Preview, Print };

    struct Delivery
    {
        Kind kind;
        QString title;
        QString path; // empty when the report had no page
        int pageCount = 0;
    };

    explicit PdfFileReportOutput(const QString &directory);

    bool preview(Report &report) override;
    bool print(Report &report) override;

    const std::vector<Delivery> &deliveries() const { return m_deliveries; }

private:
    bool deliver(Report &report, Kind kind);

    QString m_directory;
    std::vector<Delivery> m_deliveries;
};
