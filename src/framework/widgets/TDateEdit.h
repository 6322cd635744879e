#pragma once

#include "DateTime.h"
#include "TTypedEdit.h"

#include <QDate>

class QCalendarWidget;

// A date field that takes a date typed in the usual Polish ways (see
// TypedDate), shows it as yyyy-MM-dd, steps it by days with Up and Down
// (from today when it is empty) and has a calendar (its button, F4 or
// Alt+Down). It may be empty: the null date shows as a blank field and
// reads back as null, unless the form requires a date.
class TDateEdit : public TTypedEdit
{
    Q_OBJECT

public:
    explicit TDateEdit(QWidget *parent = nullptr);

    DateTime value() const;
    void setValue(DateTime value);
    // A null QDate when the field is empty.
    QDate date() const { return m_date; }
    void setDate(const QDate &date);
    bool isEmpty() const { return m_date.isNull(); }
    void clearDate();

    // Whether an empty field is a valid "no date" (by default) or a
    // date must be entered.
    bool emptyAllowed() const { return m_emptyAllowed; }
    void setEmptyAllowed(bool allowed) { m_emptyAllowed = allowed; }

    // The calendar, made the first time it is shown.
    QCalendarWidget *calendarWidget() const { return m_calendar; }
    void showCalendar();

    void stepBy(int steps) override;

Q_SIGNALS:
    // The date changed, typed, stepped, chosen or set (null when emptied).
    void dateChanged(const QDate &date);

protected:
    StepEnabled stepEnabled() const override;
    void keyPressEvent(QKeyEvent *event) override;

    bool fits(const QString &text) const override;
    QString textProblem(const QString &text) const override;
    void take(const QString &text) override;
    QString shownText() const override;
    QString widestText() const override;
    int extraWidth() const override;

private:
    void calendarChosen(const QDate &date);
    void changeDate(const QDate &date);

    QDate m_date;
    bool m_emptyAllowed = true;
    QCalendarWidget *m_calendar = nullptr;
};
