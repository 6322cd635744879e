#pragma once

#include "TfrmRegister.h"

// The vehicles' register, also their selection window.
class TfrmPojazdy : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmPojazdy(QWidget *owner, Mode mode, int currentKey);

protected:
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
};
