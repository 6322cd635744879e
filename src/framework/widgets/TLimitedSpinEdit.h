#pragma once

#include <QLineEdit>
#include <QSpinBox>

// A spin edit that also limits how many characters can be typed into it.
class TLimitedSpinEdit : public QSpinBox
{
    Q_OBJECT

public:
    explicit TLimitedSpinEdit(QWidget *parent = nullptr) : QSpinBox(parent) {}
    void setMaxLength(int characters) { lineEdit()->setMaxLength(characters); }
    int maxLength() const { return lineEdit()->maxLength(); }
};
