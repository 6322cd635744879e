#pragma once

#include "TfrmRecordEditor.h"

// Adds a loading or unloading place or corrects one.
class TfrmAddEditMiejsca : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditMiejsca(QWidget *owner, int key);
};
