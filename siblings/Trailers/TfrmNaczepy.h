#pragma once

#include "TfrmRegister.h"

// The trailers' register, also their selection window.
class TfrmNaczepy : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmNaczepy(QWidget *owner, Mode mode, int currentKey);

protected:
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
};
