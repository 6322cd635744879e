#pragma once

#include "TfrmRegister.h"

// The register of loading and unloading places, also their selection
// window.
class TfrmMiejsca : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmMiejsca(QWidget *owner, Mode mode, int currentKey);

protected:
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
};
