#pragma once

class QWidget;
class Report;

// Saves the lines of a report as a CSV file the user names: the preview
// window's "Zapisz jako CSV" for every report that has a table.
namespace ReportCsvExport {

// False when the user cancelled or the file could not be written (the
// user has then been told why).
bool save(QWidget *parent, const Report &report);

} // namespace ReportCsvExport
