#pragma once

#include "TfrmTerminy.h"

// What is due: the user's reminders of today and the overdue ones not yet
// done, to be marked done one by one.
class TfrmPokazTerminy : public TfrmTerminy
{
    Q_OBJECT

public:
    TfrmPokazTerminy(QWidget *owner, Mode mode, int currentKey);
};
