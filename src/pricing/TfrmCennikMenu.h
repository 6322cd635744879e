#pragma once

#include "TfrmRODefault.h"

class TBitBtn;

// The price-list menu: the grid of amounts, the ranges and groups, and the
// (hidden) viewer of clients per price list.
class TfrmCennikMenu : public TfrmRODefault
{
    Q_OBJECT

public:
    explicit TfrmCennikMenu(QWidget *owner);

    void BitBtn1Click();
    void btnEdPrezedzialyClick();
    void BitBtn2Click();

    TBitBtn *BitBtn1;            // "Edycja cenników"
    TBitBtn *btnEdPrezedzialy;   // "Edycja przedziałów i grup"
    TBitBtn *BitBtn2;            // "Kontrahenci-cenniki", hidden
};
