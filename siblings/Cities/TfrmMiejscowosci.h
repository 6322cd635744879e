#pragma once

#include "TfrmRegister.h"

// The cities' register, also their selection window. (TfrmMiasta is the
// incoming orders module's register of distances between cities.)
class TfrmMiejscowosci : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmMiejscowosci(QWidget *owner, Mode mode, int currentKey);

protected:
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
};
