#pragma once

#include "TfrmRODefault.h"

#include <QDate>

class QLabel;
class TDateEdit;

// Asks for the day onto which the templates of incoming orders are copied.
// Shown modally; after OK (1) the chosen day is date(). Starts on today.
class TfrmDataWzorca : public TfrmRODefault
{
    Q_OBJECT

public:
    explicit TfrmDataWzorca(QWidget *owner = nullptr);

    QDate date() const;

    QLabel *lblData;
    TDateEdit *deData;

protected:
    void FormCreate() override;
};
