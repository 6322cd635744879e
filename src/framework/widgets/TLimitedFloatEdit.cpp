#include "TLimitedFloatEdit.h"

namespace {

constexpr int DefaultDecimals = 2;
constexpr double DefaultMaximum = 99.99;

} // namespace

TLimitedFloatEdit::TLimitedFloatEdit(QWidget *parent) : TLimitedFloatEdit(DefaultDecimals, parent)
{
    setMaximum(DefaultMaximum);
}

TLimitedFloatEdit::TLimitedFloatEdit(int decimals, QWidget *parent) : TNumberEdit(parent)
{
    // A spin edit: its arrows step the value as Up and Down do.
    setButtonSymbols(QAbstractSpinBox::UpDownArrows);
    buildPattern(decimals);
}

void TLimitedFloatEdit::setDecimals(int decimals)
{
    buildPattern(decimals);
}

void TLimitedFloatEdit::setGroupSeparatorShown(bool shown)
{
    m_grouped = shown;
    buildPattern(decimals());
}

void TLimitedFloatEdit::setSuffix(const QString &suffix)
{
    m_suffix = suffix;
    buildPattern(decimals());
}

void TLimitedFloatEdit::buildPattern(int decimals)
{
    QString pattern = m_grouped ? QStringLiteral("#,##0") : QStringLiteral("0");
    if (decimals > 0)
        pattern += u'.' + QString(decimals, u'0');
    if (!m_suffix.isEmpty())
        pattern += u'"' + m_suffix + u'"';
    setPattern(pattern, decimals);
}
