#pragma once

#include "TfrmRODefault.h"

class QComboBox;
class QHBoxLayout;
class QLabel;

// What the grid of amounts and the client viewer share: the caption
// "Cennik", the close button and the drop-down of the price lists above
// their contents.
class TPriceListWindow : public TfrmRODefault
{
    Q_OBJECT

public:
    QLabel *lblCennik;
    QComboBox *cbCennik;   // group keys as item data; see PriceListCombo

protected:
    TPriceListWindow(QWidget *owner, const QString &name);

    // The row holding the drop-down; the form adds its contents below it.
    QHBoxLayout *chooserRow() const { return m_chooserRow; }

private:
    QHBoxLayout *m_chooserRow;
};
