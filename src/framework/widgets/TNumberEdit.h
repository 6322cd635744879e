#pragma once

#include "TTypedEdit.h"

// A number field that shows its value through one of the suite's number
// patterns (",0.00 %", "#,##0.00") and keeps as many decimals as it was
// made for. While it is edited it holds the plain number ("1500,5"); a
// comma or a point is the decimal point and blanks may group digits.
// Letters and other characters that cannot belong to the number are
// refused as they are typed; a number outside the range is named in a
// message and kept as typed, never clipped.
class TNumberEdit : public TTypedEdit
{
    Q_OBJECT

public:
    TNumberEdit(const QString &pattern, int decimals, double maximum, QWidget *parent = nullptr);

    const QString &pattern() const { return m_pattern; }
    int decimals() const { return m_decimals; }
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    void setMinimum(double minimum);
    void setMaximum(double maximum);
    void setRange(double minimum, double maximum);

    double value() const { return m_value; }
    // Rounded to the field's decimals and kept within its range, as a
    // value set by the program (never by typing) always was.
    void setValue(double value);

    void stepBy(int steps) override;

Q_SIGNALS:
    void valueChanged(double value);

protected:
    // For fields that build their pattern from decimals, grouping and a
    // unit (TLimitedSpinEdit, TLimitedFloatEdit).
    explicit TNumberEdit(QWidget *parent);
    void setPattern(const QString &pattern, int decimals);

    StepEnabled stepEnabled() const override;
    bool fits(const QString &text) const override;
    QString textProblem(const QString &text) const override;
    void take(const QString &text) override;
    QString shownText() const override;
    QString editedText() const override;
    QString widestText() const override;

private:
    void changeValue(double value);

    QString m_pattern;
    int m_decimals = 0;
    double m_minimum = 0.0;
    double m_maximum = 0.0;
    double m_value = 0.0;
};
