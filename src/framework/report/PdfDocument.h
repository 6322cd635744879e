#pragma once

#include "ReportPage.h"

#include <QPageLayout>
#include <QString>

#include <vector>

class QIODevice;

// Laid-out pages written as one PDF document, each page on its own sheet.
// Painting text into a PDF is most of a long report's time, so a long
// document is painted in parts at once, one thread and one QPdfWriter each,
// and the parts are joined; a short one is painted as it is.
class PdfDocument
{
public:
    explicit PdfDocument(const QString &title);

    // The pages are painted from where they are: they must outlive write().
    void addPages(const std::vector<ReportPage> &pages, const QPageLayout &layout);
    int pageCount() const { return static_cast<int>(m_sheets.size()); }

    // At most this many parts, none shorter than minimumPartPages pages.
    // Unless told, as many parts as the machine has cores, from 100 pages a
    // part.
    void setParts(int parts, int minimumPartPages);

    // Throws ReportError when the device will not take the document.
    void write(QIODevice &device) const;

private:
    struct Sheet
    {
        const ReportPage *page;
        QPageLayout layout;
    };

    // Where each part starts: each part has about as many items to paint.
    std::vector<size_t> partStarts() const;
    bool hasDrawings(size_t from, size_t to) const;
    void paint(QIODevice &device, size_t from, size_t to) const;

    QString m_title;
    std::vector<Sheet> m_sheets;
    int m_parts;
    int m_minimumPartPages = 100;
};
