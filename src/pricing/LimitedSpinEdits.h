#pragma once

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QSpinBox>

// Spin edits that also limit how many characters can be typed into them.
class TLimitedSpinEdit : public QSpinBox
{
    Q_OBJECT

public:
    explicit TLimitedSpinEdit(QWidget *parent = nullptr) : QSpinBox(parent) {}
    void setMaxLength(int characters) { lineEdit()->setMaxLength(characters); }
    int maxLength() const { return lineEdit()->maxLength(); }
};

class TLimitedFloatEdit : public QDoubleSpinBox
{
    Q_OBJECT

public:
    explicit TLimitedFloatEdit(QWidget *parent = nullptr) : QDoubleSpinBox(parent) {}
    void setMaxLength(int characters) { lineEdit()->setMaxLength(characters); }
    int maxLength() const { return lineEdit()->maxLength(); }
};
