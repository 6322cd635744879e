#pragma once

#include "DateTime.h"
#include "Format.h"

#include <QString>

// How the registers of the siblings write values into their lists.
namespace ListTexts {

inline QString yesNo(bool on)
{
    return on ? QStringLiteral("tak") : QStringLiteral("nie");
}

// Blank for 0, which means "not given" in these registers.
inline QString number(int value)
{
    return value == 0 ? QString() : QString::number(value);
}

inline QString amount(double value, QStringView pattern = u"#,##0.00")
{
    return Format::number(value, pattern);
}

inline QString date(DateTime value)
{
    return Format::date(value);
}

} // namespace ListTexts
