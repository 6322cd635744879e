#pragma once

#include "ReportPage.h"
#include "ReportPageSetup.h"

#include <QString>

#include <vector>

class QPagedPaintDevice;
class QPainter;
class QPrinter;
class ReportTextCache;

// Paints pre-rendered pages. The devices are set up without margins, so
// page coordinates are sheet coordinates.
namespace ReportPainter {

// texts: where the texts of many pages painted one after the other are
// laid out once; none lays each text out as it is painted.
void paintPage(QPainter &painter, const ReportPage &page, double dotsPerMm,
               ReportTextCache *texts = nullptr);

// Sets a printer to the report's sheet; call before painting onto it.
void setUpPrinter(QPrinter &printer, const ReportPageSetup &setup, const QString &title);
// All pages, one sheet each; throws ReportError when the device will not start.
void paintPages(QPagedPaintDevice &device, const std::vector<ReportPage> &pages);
// Headless: no window, no printer. Throws ReportError.
void writePdf(const QString &path, const std::vector<ReportPage> &pages,
              const ReportPageSetup &setup, const QString &title);

} // namespace ReportPainter
