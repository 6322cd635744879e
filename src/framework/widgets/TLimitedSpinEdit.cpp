#include "TLimitedSpinEdit.h"

namespace {

constexpr int DefaultMaximum = 99;

} // namespace

TLimitedSpinEdit::TLimitedSpinEdit(QWidget *parent) : TLimitedFloatEdit(0, parent)
{
    setMaximum(DefaultMaximum);
}
