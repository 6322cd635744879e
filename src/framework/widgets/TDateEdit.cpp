#include "TDateEdit.h"

#include "Format.h"
#include "TypedDate.h"

#include <QAction>
#include <QCalendarWidget>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPixmap>

namespace {

constexpr int DateLength = 10;   // yyyy-MM-dd, dd.MM.yyyy
constexpr int ButtonWidth = 22;

QIcon calendarIcon()
{
    QPixmap picture(16, 16);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setPen(Qt::black);
    painter.drawRect(1, 2, 13, 12);
    painter.fillRect(1, 2, 14, 3, Qt::black);
    for (int y : {7, 10})
        for (int x : {3, 6, 9, 12})
            painter.fillRect(x, y, 2, 2, Qt::black);
    return QIcon(picture);
}

} // namespace

TDateEdit::TDateEdit(QWidget *parent) : TTypedEdit(parent)
{
    setButtonSymbols(QAbstractSpinBox::NoButtons);
    setMaxLength(DateLength);
    QAction *button = lineEdit()->addAction(calendarIcon(), QLineEdit::TrailingPosition);
    button->setObjectName(QStringLiteral("acKalendarz"));
    button->setToolTip(QStringLiteral("Kalendarz (F4)"));
    connect(button, &QAction::triggered, this, &TDateEdit::showCalendar);
    showValue();
}

DateTime TDateEdit::value() const
{
    return isEmpty() ? DateTime() : DateTime::fromDate(m_date);
}

void TDateEdit::setValue(DateTime value)
{
    setDate(value.isNull() ? QDate() : value.date());
}

void TDateEdit::setDate(const QDate &date)
{
    changeDate(date.isValid() ? date : QDate());
    showValue();
}

void TDateEdit::clearDate()
{
    setDate(QDate());
}

void TDateEdit::showCalendar()
{
    if (!m_calendar) {
        m_calendar = new QCalendarWidget(this);
        m_calendar->setObjectName(QStringLiteral("calendar"));
        m_calendar->setWindowFlags(Qt::Popup);
        m_calendar->setGridVisible(true);
        connect(m_calendar, &QCalendarWidget::clicked, this, &TDateEdit::calendarChosen);
        connect(m_calendar, &QCalendarWidget::activated, this, &TDateEdit::calendarChosen);
    }
    // An empty field opens its calendar on today, not on some day long ago.
    m_calendar->setSelectedDate(isEmpty() ? QDate::currentDate() : m_date);
    m_calendar->adjustSize();
    m_calendar->move(mapToGlobal(rect().bottomLeft()));
    m_calendar->show();
    m_calendar->setFocus(Qt::PopupFocusReason);
}

void TDateEdit::calendarChosen(const QDate &date)
{
    m_calendar->close();
    setDate(date);
    setFocus(Qt::PopupFocusReason);
}

void TDateEdit::stepBy(int steps)
{
    const int cursor = lineEdit()->cursorPosition();
    setDate(isEmpty() ? QDate::currentDate() : m_date.addDays(steps));
    lineEdit()->setCursorPosition(cursor);
}

QAbstractSpinBox::StepEnabled TDateEdit::stepEnabled() const
{
    return isReadOnly() ? StepNone : (StepUpEnabled | StepDownEnabled);
}

void TDateEdit::keyPressEvent(QKeyEvent *event)
{
    const bool altDown
        = event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier);
    if ((event->key() == Qt::Key_F4 || altDown) && !isReadOnly()) {
        showCalendar();
        return;
    }
    TTypedEdit::keyPressEvent(event);
}

bool TDateEdit::fits(const QString &text) const
{
    return TypedDate::fits(text);
}

QString TDateEdit::textProblem(const QString &text) const
{
    return TypedDate::problem(text, QDate::currentDate(), m_emptyAllowed);
}

void TDateEdit::take(const QString &text)
{
    changeDate(TypedDate::read(text, QDate::currentDate()).value_or(m_date));
}

void TDateEdit::changeDate(const QDate &date)
{
    if (date == m_date)
        return;
    m_date = date;
    Q_EMIT dateChanged(date);
}

QString TDateEdit::shownText() const
{
    return Format::date(m_date);
}

QString TDateEdit::widestText() const
{
    return QStringLiteral("0000-00-00");
}

int TDateEdit::extraWidth() const
{
    return ButtonWidth;
}
