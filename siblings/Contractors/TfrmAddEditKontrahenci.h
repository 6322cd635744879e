#pragma once

#include "TfrmRecordEditor.h"

// Adds a contractor or corrects one.
class TfrmAddEditKontrahenci : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditKontrahenci(QWidget *owner, int key);
};
