#pragma once

#include "ReportPage.h"

#include <QStringList>

#include <vector>

namespace ReportTexts {

// The texts of laid-out pages, in the order they were placed, blanks left out.
QStringList printed(const std::vector<ReportPage> &pages);
// Whether the texts hold the expected ones in this order (others between).
bool inOrder(const QStringList &texts, const QStringList &expected);

} // namespace ReportTexts
