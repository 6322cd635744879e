#pragma once

#include "TfrmTerminy.h"

#include <memory>

class QCalendarWidget;

// The scheduler's calendar: a month of the user's reminders beside a
// calendar whose days with reminders are bold; turning the calendar's page
// lists that month, clicking a day selects its first reminder and a new
// reminder starts on the chosen day.
class TfrmTerminarz : public TfrmTerminy
{
    Q_OBJECT

public:
    TfrmTerminarz(QWidget *owner, Mode mode, int currentKey);

    QCalendarWidget *calTerminarz;

protected:
    void LoadLVData() override;
    QDate newReminderDay() const override;

private:
    TfrmTerminarz(QWidget *owner, std::shared_ptr<QDate> firstDay);
    void pageChanged(int year, int month);
    void dayClicked(QDate day);
    void markDays();

    std::shared_ptr<QDate> m_firstDay;
};
