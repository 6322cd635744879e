#pragma once

#include "TDateEdit.h"

#include <QString>

// A named date field that must hold a date (a period's bounds, an
// invoice's dates): left empty, it is refused as a text that is no date.
inline TDateEdit *requiredDateEdit(const QString &name, QWidget *parent)
{
    auto *edit = new TDateEdit(parent);
    edit->setObjectName(name);
    edit->setEmptyAllowed(false);
    return edit;
}
