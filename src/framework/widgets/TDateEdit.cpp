#include "TDateEdit.h"

#include <QCalendarWidget>
#include <QEvent>

namespace {

// The day before any date a dispatcher enters stands for "no date".
QDate emptyMarker()
{
    return QDate(1899, 12, 30);
}

} // namespace

TDateEdit::TDateEdit(QWidget *parent) : QDateEdit(parent)
{
    setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    setCalendarPopup(true);
    setMinimumDate(emptyMarker());
    setSpecialValueText(QStringLiteral(" "));
    clearDate();
    // An empty field opens its calendar on today, not on the marker day.
    calendarWidget()->installEventFilter(this);
}

DateTime TDateEdit::value() const
{
    return isEmpty() ? DateTime() : DateTime::fromDate(date());
}

void TDateEdit::setValue(DateTime value)
{
    setDate(value.isNull() ? emptyMarker() : value.date());
}

bool TDateEdit::isEmpty() const
{
    return date() == emptyMarker();
}

void TDateEdit::clearDate()
{
    setDate(emptyMarker());
}

bool TDateEdit::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == calendarWidget() && event->type() == QEvent::Show && isEmpty()) {
        const QDate today = QDate::currentDate();
        calendarWidget()->setCurrentPage(today.year(), today.month());
    }
    return QDateEdit::eventFilter(watched, event);
}
