#pragma once

#include <QByteArray>

#include <vector>

class QIODevice;

// Joins PDF documents that QPdfWriter wrote into one document: the first
// document's catalogue and information, then every document's pages in
// order. Each document keeps its own fonts, renamed where two subsets of one
// font would share a name. It reads only what QPdfWriter writes (one
// classic cross-reference table, a flat page tree) and refuses anything
// else with a ReportError rather than guess.
namespace PdfJoin {

void join(const std::vector<QByteArray> &documents, QIODevice &device);

} // namespace PdfJoin
