#include "TBitBtn.h"

TBitBtn::TBitBtn(const QString &caption, QWidget *parent) : QPushButton(caption, parent)
{
}
