#pragma once

#include "ReportLabel.h"
#include "ReportPage.h"

#include <QFontMetricsF>
#include <QHash>
#include <QStringList>
#include <QVariantList>

#include <functional>

#include <memory>
#include <vector>

class Report;
class ReportBand;

// Lays a report out: runs the data source, the before-print callbacks, the
// group breaks and the sums, and places every printed band on pages. Page
// numbers are filled in once the number of pages is known.
class ReportPreRenderer
{
public:
    using PageHandler = std::function<void(ReportPage &&page)>;

    // takePage: given each page as soon as nothing on it can change any
    // more (none waits for the number of pages), or all of them at the end.
    explicit ReportPreRenderer(Report &report, PageHandler takePage = {});

    // The pages not handed over: all of them, without takePage.
    std::vector<ReportPage> run();

    // Height in millimetres that a text needs in a box of the given width.
    static double textHeight(const ReportFont &font, double widthMm, bool wordWrap,
                             const QString &text);

private:
    struct PendingPageText
    {
        size_t page;
        size_t item;
        ReportLabel::PageTextFunction text;
    };

    void printRows();
    void startPage();
    void finishPage(bool lastPage);
    void handOverFinishedPages();
    // Header-like bands are placed where the cursor stands, never breaking.
    void printFixedBand(ReportBand &band);
    // Body bands break to a new page when they do not fit; the band that
    // takes a row adds it to the sums when it prints.
    void printBodyBand(ReportBand &band, bool takesRow = false);
    void addRowToSums();
    void printGroupHeaders(size_t fromLevel);
    void printGroupFooters(size_t fromLevel);
    void resetSumsOf(size_t level);
    QVariantList groupKeys() const;

    QStringList resolveTexts(const ReportBand &band);
    double bandHeight(const ReportBand &band, const QStringList &texts);
    void place(const ReportBand &band, const QStringList &texts, double height);
    void resolvePageTexts();
    ReportPage &page() { return m_pages.back(); }

    // A font of the report, shared by every text placed in it, with its
    // metrics for measuring.
    struct FontInUse
    {
        std::shared_ptr<const ReportFont> font;
        QFontMetricsF metrics;
    };
    const FontInUse &fontInUse(const ReportFont &font);

    Report &m_report;
    PageHandler m_takePage;
    // The pages not yet handed over, the last one being laid out.
    std::vector<ReportPage> m_pages;
    int m_pagesHandedOver = 0;
    std::vector<PendingPageText> m_pendingPageTexts;
    std::vector<FontInUse> m_fonts;
    // What each label printed last, to share its text when it repeats.
    QHash<const ReportLabel *, QString> m_lastTexts;
    double m_y = 0.0;
    double m_bodyBottom = 0.0;
    bool m_bodyStarted = false;
    size_t m_openGroups = 0;
};
