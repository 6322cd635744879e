#pragma once

#include <QString>

class TListViewModel;

// The register's own export of its list ("-> *.CSV"): a header line with
// the captions of the first fifteen columns, each followed by ";" and cut at
// 255 characters, then one line per row with the texts of the same columns
// joined by "###". Other programs of the suite read these files with the
// two separators, so they differ on purpose.
namespace RegisterExport {

inline constexpr int ExportedColumns = 15;
inline constexpr int HeaderLength = 255;

QString headerLine(const TListViewModel &list);
QString rowLine(const TListViewModel &list, int row);

// Creates or overwrites the file; false when it cannot be written.
bool write(const TListViewModel &list, const QString &path);

} // namespace RegisterExport
