#pragma once

#include "TfrmRegister.h"

#include <QDate>

class TBitBtn;

// What the scheduler's two windows share: the user's reminders in a list,
// their editor, and "Wy&konane", which marks the selected reminder done (or
// not done again).
class TfrmTerminy : public TfrmRegister
{
    Q_OBJECT

public:
    void acWykonaneExecute();

    QAction *acWykonane;
    TBitBtn *btnWykonane;

protected:
    TfrmTerminy(QWidget *owner, std::unique_ptr<RegisterModel> model);

    std::unique_ptr<TfrmRecordEditor> createEditor(int key) override;
    void UpdateControls() override;
    // The day a new reminder starts on.
    virtual QDate newReminderDay() const { return QDate::currentDate(); }
};
