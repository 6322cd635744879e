#include "TNumberEdit.h"

#include "Format.h"
#include "TypedNumber.h"

#include <QLineEdit>

#include <algorithm>

namespace {

TypedNumber::Limits limitsOf(const TNumberEdit &edit)
{
    return {edit.decimals(), edit.minimum(), edit.maximum()};
}

} // namespace

TNumberEdit::TNumberEdit(const QString &pattern, int decimals, double maximum, QWidget *parent)
    : TNumberEdit(parent)
{
    m_maximum = maximum;
    setPattern(pattern, decimals);
}

TNumberEdit::TNumberEdit(QWidget *parent) : TTypedEdit(parent)
{
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    showValue();
}

void TNumberEdit::setPattern(const QString &pattern, int decimals)
{
    m_pattern = pattern;
    m_decimals = decimals;
    m_value = TypedNumber::rounded(m_value, decimals);
    updateGeometry();
    showValue();
}

void TNumberEdit::setMinimum(double minimum)
{
    setRange(minimum, std::max(minimum, m_maximum));
}

void TNumberEdit::setMaximum(double maximum)
{
    setRange(std::min(m_minimum, maximum), maximum);
}

void TNumberEdit::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    updateGeometry();
    setValue(m_value);
}

void TNumberEdit::setValue(double value)
{
    changeValue(std::clamp(TypedNumber::rounded(value, m_decimals), m_minimum, m_maximum));
    showValue();
}

void TNumberEdit::changeValue(double value)
{
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT valueChanged(value);
}

void TNumberEdit::stepBy(int steps)
{
    setValue(m_value + steps);
    if (hasFocus())
        selectAll();
}

QAbstractSpinBox::StepEnabled TNumberEdit::stepEnabled() const
{
    if (isReadOnly())
        return StepNone;
    StepEnabled enabled = StepNone;
    if (m_value < m_maximum)
        enabled |= StepUpEnabled;
    if (m_value > m_minimum)
        enabled |= StepDownEnabled;
    return enabled;
}

bool TNumberEdit::fits(const QString &text) const
{
    return TypedNumber::fits(text, limitsOf(*this));
}

QString TNumberEdit::textProblem(const QString &text) const
{
    return TypedNumber::problem(text, limitsOf(*this));
}

void TNumberEdit::take(const QString &text)
{
    changeValue(TypedNumber::read(text).value_or(m_value));
}

QString TNumberEdit::shownText() const
{
    return Format::number(m_value, m_pattern);
}

QString TNumberEdit::editedText() const
{
    return TypedNumber::editable(m_value, m_decimals);
}

QString TNumberEdit::widestText() const
{
    const QString low = Format::number(m_minimum, m_pattern);
    const QString high = Format::number(m_maximum, m_pattern);
    return low.size() > high.size() ? low : high;
}
