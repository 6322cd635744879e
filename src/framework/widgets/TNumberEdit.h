#pragma once

#include <QDoubleSpinBox>

// A number field that shows its value through one of the suite's number
// patterns (",0.00 %", "#,##0.00") while keeping every decimal it was
// given, as the amount fields of the order dialogs do. Typed text may use
// a comma or a point; blanks are ignored.
class TNumberEdit : public QDoubleSpinBox
{
    Q_OBJECT

public:
    TNumberEdit(const QString &pattern, int decimals, double maximum, QWidget *parent = nullptr);

    const QString &pattern() const { return m_pattern; }

protected:
    QString textFromValue(double value) const override;
    double valueFromText(const QString &text) const override;
    QValidator::State validate(QString &text, int &position) const override;
    void fixup(QString &text) const override;

private:
    // The typed number without the pattern's prefix and suffix.
    QString numberPart(const QString &text) const;

    QString m_pattern;
};
