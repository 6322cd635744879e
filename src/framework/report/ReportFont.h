#pragma once

#include <QFont>
#include <QString>

// A font as a report names it. The family is kept as written so that the
// pre-rendered pages read the same on every machine; where the family is
// not installed the painter falls back to a sans-serif face.
struct ReportFont
{
    QString family = QStringLiteral("Tahoma");
    double pointSize = 8.0;
    bool bold = false;
    bool italic = false;
    bool underline = false;

    QFont toQFont() const;
    bool operator==(const ReportFont &) const = default;

    static ReportFont sized(double pointSize, bool bold = false);
};
