#pragma once

#include "TKarty_drObj.h"
#include "TableRecordEditing.h"
#include "TfrmRecordEditor.h"

// Adds a road card or corrects one; opened with an incoming order, it makes
// (or opens) the order's card. Choosing a vehicle brings its default driver
// and trailer and its meter and fuel readings where the card has none.
class TfrmAddEditKartyDrogowe : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditKartyDrogowe(QWidget *owner, int key, int orderKey = 0);

private:
    TableRecordEditing<TKarty_drObj> &card();
    void vehicleChosen();
};
