#pragma once

#include "ReportPage.h"

#include <QByteArray>
#include <QPageLayout>
#include <QString>

#include <deque>
#include <exception>
#include <memory>
#include <vector>

class QIODevice;
class QThreadPool;

// Laid-out pages written as one PDF document, each page on its own sheet.
// Painting text into a PDF is most of a long report's time, so a long
// document is painted in parts at once, one thread and one QPdfWriter each,
// and the parts are joined; a short one is painted as it is. Pages handed
// over while a report is still being laid out are painted meanwhile.
class PdfDocument
{
public:
    explicit PdfDocument(const QString &title);
    // Waits for the parts still being painted.
    ~PdfDocument();
    PdfDocument(const PdfDocument &) = delete;
    PdfDocument &operator=(const PdfDocument &) = delete;

    // The title goes into the first part painted: set it before that.
    void setTitle(const QString &title) { m_title = title; }

    // The pages are painted from where they are: they must outlive write().
    void addPages(const std::vector<ReportPage> &pages, const QPageLayout &layout);
    // A page that will not change any more. Once a part's worth of them has
    // come, that part is painted on a thread of its own while the caller
    // goes on laying out the rest.
    void takePage(ReportPage &&page, const QPageLayout &layout);
    int pageCount() const { return m_pageCount; }

    // At most this many parts at once, none shorter than minimumPartPages
    // pages. Unless told, as many as the machine has cores, from 100 pages
    // a part.
    void setParts(int parts, int minimumPartPages);

    // Throws ReportError when the device will not take the document.
    void write(QIODevice &device);

private:
    struct Sheet
    {
        const ReportPage *page;
        QPageLayout layout;
        std::unique_ptr<const ReportPage> owned;
    };
    struct Part
    {
        std::vector<Sheet> sheets;
        QByteArray pdf;
        std::exception_ptr failure;
        bool onThread = false;
    };

    // Where each part of the sheets not yet in a part starts: each part has
    // about as many items to paint.
    std::vector<size_t> partStarts() const;
    // The first count sheets not yet in a part become one.
    Part &formPart(size_t count);
    static bool hasDrawings(const Part &part);
    void paintOnThread(Part &part);
    static void paint(QIODevice &device, const std::vector<Sheet> &sheets, const QString &title);

    QString m_title;
    std::vector<Sheet> m_sheets;
    std::deque<Part> m_parts;
    int m_pageCount = 0;
    int m_maximumParts;
    int m_minimumPartPages = 100;
    // Last, so that it is gone, and its threads done, before what they paint.
    std::unique_ptr<QThreadPool> m_threads;
};
