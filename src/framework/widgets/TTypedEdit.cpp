#include "TTypedEdit.h"

#include "MessageService.h"

#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QStyleOptionSpinBox>
#include <QWheelEvent>

namespace {

const QColor MarkColour(255, 221, 221);

QString plainCaption(QString text)
{
    text.remove(u'&');
    text = text.trimmed();
    while (text.endsWith(u':'))
        text.chop(1);
    return text.trimmed();
}

// "Pole „Data” (Załadunek): " from the field's label and its group, so
// that a message shown while the user is elsewhere says which field.
QString fieldCaption(const QWidget *field)
{
    QString label;
    for (const QLabel *candidate : field->window()->findChildren<QLabel *>()) {
        if (candidate->buddy() == field) {
            label = plainCaption(candidate->text());
            break;
        }
    }
    QString group;
    for (const QWidget *parent = field->parentWidget(); parent; parent = parent->parentWidget()) {
        if (const auto *box = qobject_cast<const QGroupBox *>(parent)) {
            group = plainCaption(box->title());
            break;
        }
    }
    if (!label.isEmpty() && !group.isEmpty())
        return QStringLiteral("Pole „%1” (%2): ").arg(label, group);
    if (!label.isEmpty())
        return QStringLiteral("Pole „%1”: ").arg(label);
    if (!group.isEmpty())
        return QStringLiteral("Pole w grupie „%1”: ").arg(group);
    return QString();
}

} // namespace

TTypedEdit::TTypedEdit(QWidget *parent) : QAbstractSpinBox(parent)
{
    // The base class never reads or rewrites the text: this class does.
    setKeyboardTracking(false);
    connect(lineEdit(), &QLineEdit::textEdited, this, &TTypedEdit::edited);
}

QString TTypedEdit::problem() const
{
    const QString why = textProblem(lineEdit()->text());
    return why.isEmpty() ? why : fieldCaption(this) + why;
}

bool TTypedEdit::commit()
{
    // An untouched text is the value's own, whatever its literals.
    if (!m_edited)
        return true;
    const QString text = lineEdit()->text();
    if (!textProblem(text).isEmpty()) {
        setMarked(true);
        return false;
    }
    take(text);
    if (!hasFocus())
        showValue();
    return true;
}

void TTypedEdit::setMaxLength(int characters)
{
    lineEdit()->setMaxLength(characters);
}

int TTypedEdit::maxLength() const
{
    return lineEdit()->maxLength();
}

QValidator::State TTypedEdit::validate(QString &input, int &) const
{
    if (!fits(input))
        return QValidator::Invalid;
    return textProblem(input).isEmpty() ? QValidator::Acceptable : QValidator::Intermediate;
}

void TTypedEdit::fixup(QString &) const
{
}

void TTypedEdit::clear()
{
    lineEdit()->clear();
    edited(QString());
}

void TTypedEdit::showValue()
{
    lineEdit()->setText(hasFocus() ? editedText() : shownText());
    m_edited = false;
    setMarked(false);
}

void TTypedEdit::edited(const QString &text)
{
    m_edited = true;
    if (!textProblem(text).isEmpty())
        return;
    take(text);
    setMarked(false);
}

void TTypedEdit::setMarked(bool marked)
{
    if (marked == m_marked)
        return;
    m_marked = marked;
    QPalette palette;
    if (marked) {
        palette = lineEdit()->palette();
        palette.setColor(QPalette::Base, MarkColour);
    }
    lineEdit()->setPalette(palette);
    setToolTip(marked ? problem() : QString());
}

void TTypedEdit::focusInEvent(QFocusEvent *event)
{
    // A text the user typed stays exactly as typed.
    if (!m_edited)
        lineEdit()->setText(editedText());
    QAbstractSpinBox::focusInEvent(event);
    // Coming from the keyboard, or at a form's start, typing replaces the
    // value; a click puts the cursor where it was clicked.
    if (event->reason() != Qt::MouseFocusReason)
        selectAll();
}

void TTypedEdit::focusOutEvent(QFocusEvent *event)
{
    QAbstractSpinBox::focusOutEvent(event);
    if (!m_edited) {
        showValue();
        return;
    }
    if (commit())
        return;
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
        reportAfterLeaving();
}

void TTypedEdit::reportAfterLeaving()
{
    // After the focus has moved on: the user is never kept in the field.
    QMetaObject::invokeMethod(
        this,
        [field = QPointer<TTypedEdit>(this)] {
            if (!field || !field->isVisible())
                return;
            const QString why = field->problem();
            if (!why.isEmpty())
                Messages::error(why);
        },
        Qt::QueuedConnection);
}

void TTypedEdit::wheelEvent(QWheelEvent *event)
{
    // A wheel turned over the form must not change a field in passing.
    if (hasFocus())
        QAbstractSpinBox::wheelEvent(event);
    else
        event->ignore();
}

QSize TTypedEdit::sizeHint() const
{
    ensurePolished();
    const int width = fontMetrics().horizontalAdvance(widestText() + u' ') + 2 + extraWidth();
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option,
                                     QSize(width, lineEdit()->sizeHint().height()), this);
}

QSize TTypedEdit::minimumSizeHint() const
{
    return sizeHint();
}
