#pragma once

#include "TfrmRecordEditor.h"

// Adds a vehicle or corrects one.
class TfrmAddEditPojazdy : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditPojazdy(QWidget *owner, int key);
};
