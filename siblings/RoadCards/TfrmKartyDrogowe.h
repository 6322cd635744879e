#pragma once

#include "TfrmRegister.h"

// The register of road cards. (TfrmKartaDrogowa is the incoming orders
// module's choice of a card for an order.)
class TfrmKartyDrogowe : public TfrmRegister
{
    Q_OBJECT

public:
    TfrmKartyDrogowe(QWidget *owner, Mode mode, int currentKey);

protected:
    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
};
