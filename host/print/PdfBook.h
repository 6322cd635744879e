#pragma once

#include "PdfDocument.h"

#include <QString>

class QIODevice;
class Report;

// Several reports laid out one after the other into one PDF document, each
// page on its own report's sheet (an upright invoice followed by its lying
// attachment). Nothing is written until every report has been laid out, but
// the pages of a long report are painted while the rest of it is laid out.
class PdfBook
{
public:
    PdfBook();

    // Lays the report out; a long one's pages are painted as they come.
    // Errors of its data propagate.
    void add(Report &report);

    int pageCount() const { return m_document.pageCount(); }

    // The document takes the first report's title. Throws ReportError when
    // the device will not take it.
    void write(QIODevice &device);
    // Written beside the file and renamed over it only when complete, so a
    // failure leaves the file as it was, or not there at all. Throws
    // ReportError.
    void save(const QString &path);

private:
    PdfDocument m_document;
    int m_reports = 0;
};
