#pragma once

#include "ReportPage.h"

#include <QStringList>

#include <vector>

// What laid-out report pages say, for checking them.
namespace PageTexts {

// Every non-empty text of the pages in order, dotted signature lines left out.
QStringList printed(const std::vector<ReportPage> &pages);
// Whether the texts hold the expected ones in that order (others between).
bool inOrder(const QStringList &texts, const QStringList &expected);

} // namespace PageTexts
