#pragma once

#include <QFont>

// "Tahoma", the suite's font. Where the system has none, the metric-compatible
// copy shipped with Wine's fonts (Debian package fonts-wine) is registered on
// first use, so columns sized for Tahoma still fit their texts; failing that,
// Qt falls back to a sans-serif font.
QFont tahomaFont();
