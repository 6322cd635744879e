#pragma once

#include <QDoubleSpinBox>
#include <QLineEdit>

// A spin edit of fractions that also limits how many characters can be
// typed into it.
class TLimitedFloatEdit : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit TLimitedFloatEdit(QWidget *parent = nullptr) : QDoubleSpinBox(parent) {}
    void setMaxLength(int characters) { lineEdit()->setMaxLength(characters); }
    int maxLength() const { return lineEdit()->maxLength(); }
};
