#pragma once

#include <QString>

// What poppler reads back from a PDF file. A missing tool fails the test:
// the machine was set up without poppler-utils.
namespace Poppler {

// The text of the file, with its layout kept (pages end in a form feed).
QString text(const QString &path);
// A value pdfinfo reports, e.g. "Pages", "Title" or "Page size"; with a
// page given, that page's own values ("size").
QString info(const QString &path, const QString &key, int page = 0);

} // namespace Poppler
