#pragma once

#include "ReportPage.h"
#include "ReportPageSetup.h"

#include <QString>

#include <vector>

class QIODevice;
class Report;

// Several reports laid out one after the other into one PDF document, each
// page on its own report's sheet (an upright invoice followed by its lying
// attachment). Nothing is written until every report has been laid out.
class PdfBook
{
public:
    // Lays the report out and keeps its pages; errors of its data propagate.
    void add(Report &report);

    int pageCount() const;

    // The document takes the first report's title. Throws ReportError when
    // the device will not take it.
    void write(QIODevice &device) const;
    // Written beside the file and renamed over it only when complete, so a
    // failure leaves the file as it was, or not there at all. Throws
    // ReportError.
    void save(const QString &path) const;

private:
    struct Section
    {
        QString title;
        ReportPageSetup setup;
        std::vector<ReportPage> pages;
    };
    std::vector<Section> m_sections;
};
