#include "TBitBtn.h"

TBitBtn::TBitBtn(const QString &caption, QWidget *parent) : QPushButton(caption, parent)
{
}

TBitBtn *TBitBtn::create(const QString &caption, const QString &name, QWidget *parent)
{
    auto *button = new TBitBtn(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}
