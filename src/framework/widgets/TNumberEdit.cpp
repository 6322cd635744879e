#include "TNumberEdit.h"

#include "Format.h"

TNumberEdit::TNumberEdit(const QString &pattern, int decimals, double maximum, QWidget *parent)
    : QDoubleSpinBox(parent), m_pattern(pattern)
{
    setDecimals(decimals);
    setRange(0.0, maximum);
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setKeyboardTracking(false);
}

QString TNumberEdit::textFromValue(double value) const
{
    return Format::number(value, m_pattern);
}

QString TNumberEdit::numberPart(const QString &text) const
{
    QString number;
    for (const QChar c : text) {
        if (c.isDigit() || c == u',' || c == u'.' || c == u'-')
            number += c;
    }
    return number;
}

double TNumberEdit::valueFromText(const QString &text) const
{
    return Format::parseNumber(numberPart(text)).value_or(0.0);
}

QValidator::State TNumberEdit::validate(QString &text, int &) const
{
    const QString number = numberPart(text);
    if (number.isEmpty() || number == u"-")
        return QValidator::Intermediate;
    const qsizetype point = std::max(number.lastIndexOf(u','), number.lastIndexOf(u'.'));
    if (point >= 0 && number.size() - point - 1 > decimals())
        return QValidator::Invalid;
    const bool endsWithPoint = point == number.size() - 1;
    const std::optional<double> value
        = Format::parseNumber(endsWithPoint ? number.left(point) : number);
    if (!value)
        return QValidator::Invalid;
    if (*value > maximum())
        return QValidator::Invalid;
    if (*value < minimum() || endsWithPoint)
        return QValidator::Intermediate;
    return QValidator::Acceptable;
}

void TNumberEdit::fixup(QString &text) const
{
    text = textFromValue(std::clamp(valueFromText(text), minimum(), maximum()));
}
