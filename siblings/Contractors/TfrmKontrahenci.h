#pragma once

#include "TfrmRegister.h"

// The contractors' register, also their selection window.
class TfrmKontrahenci : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmKontrahenci(QWidget *owner, Mode mode, int currentKey);

protected:
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
};
