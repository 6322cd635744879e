#include "TBitBtn.h"

#include "NamedButton.h"

TBitBtn::TBitBtn(const QString &caption, QWidget *parent) : QPushButton(caption, parent)
{
}

TBitBtn *TBitBtn::create(const QString &caption, const QString &name, QWidget *parent)
{
    return namedButton<TBitBtn>(caption, name, parent);
}
