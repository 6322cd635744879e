#pragma once

#include "TfrmRecordEditor.h"

#include <QDate>

// Adds a reminder of the session's user, starting on day, or corrects one.
class TfrmAddEditTerminy : public TfrmRecordEditor
{
    Q_OBJECT

public:
    TfrmAddEditTerminy(QWidget *owner, int key, QDate day);
};
