#pragma once

#include <QString>

class TDateEdit;

namespace DateTyping {

// Types a date (yyyy-MM-dd) over a date field's text as a person does:
// the year selected, then the digits; each section passes on to the next
// once it is full.
void retype(TDateEdit *field, const QString &date);

} // namespace DateTyping
