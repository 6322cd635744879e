#pragma once

#include "TfrmRecordEditor.h"

// Adds a trailer or corrects one.
class TfrmAddEditNaczepy : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditNaczepy(QWidget *owner, int key);
};
