#pragma once

#include "Drivers.h"
#include "TfrmRecordEditor.h"

// Adds a driver (a mechanic when opened from the mechanics' register) or
// corrects one.
class TfrmAddEditKierowcy : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditKierowcy(QWidget *owner, int key, Drivers::Staff staff = Drivers::Staff::All);
};
