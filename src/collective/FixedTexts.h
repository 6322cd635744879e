#pragma once

#include <QString>

// The fixed texts a collective order can print, one file per number under
// the application directory's Reports/ZleceniaTeksty.
namespace FixedTexts {

// appPath without a trailing separator.
QString fileName(const QString &appPath, int number);
bool exists(const QString &appPath, int number);
// The file's text (UTF-8); empty when it cannot be read.
QString read(const QString &appPath, int number);

} // namespace FixedTexts
