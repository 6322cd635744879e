#pragma once

#include <QString>

// The INI-format error logs of the suite. A file is named by its bare name
// and so lives in the current directory.
namespace ErrorLog {

inline const QString HaulixErrors = QStringLiteral("HaulixErrors.ini");
inline const QString SqlErrors = QStringLiteral("SQLErrors.ini");

// One value: section the date "dd-MM-yyyy", key the time, value the message
// on one line. Two writes within the same second share a key; the later wins.
void write(const QString &fileName, const QString &message);

// The message as it is logged: every CR LF pair, and any line break left
// over, becomes a single blank.
QString oneLine(const QString &message);

} // namespace ErrorLog
