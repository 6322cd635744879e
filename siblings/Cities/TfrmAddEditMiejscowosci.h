#pragma once

#include "TfrmRecordEditor.h"

// Adds a city or corrects one.
class TfrmAddEditMiejscowosci : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditMiejscowosci(QWidget *owner, int key);
};
