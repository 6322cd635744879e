#pragma once

#include "TLimitedFloatEdit.h"

// A whole-number field, built like TLimitedFloatEdit without decimals.
class TLimitedSpinEdit : public TLimitedFloatEdit
{
    Q_OBJECT

public:
    explicit TLimitedSpinEdit(QWidget *parent = nullptr);

    int value() const { return static_cast<int>(TNumberEdit::value()); }
    int minimum() const { return static_cast<int>(TNumberEdit::minimum()); }
    int maximum() const { return static_cast<int>(TNumberEdit::maximum()); }

private:
    using TLimitedFloatEdit::setDecimals;
};
