// How TfrmRODefault moves through a form by keyboard and makes sure that
// what was typed is taken before a button acts.
#include "TfrmRODefault.h"

#include "MessageService.h"
#include "TBitBtn.h"
#include "TTypedEdit.h"
#include "TframeListView.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QShortcutEvent>
#include <QTextEdit>

namespace {

bool isReadOnly(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->isReadOnly();
    if (const auto *spin = qobject_cast<const QAbstractSpinBox *>(widget))
        return spin->isReadOnly();
    if (const auto *memo = qobject_cast<const QPlainTextEdit *>(widget))
        return memo->isReadOnly();
    if (const auto *text = qobject_cast<const QTextEdit *>(widget))
        return text->isReadOnly();
    return false;
}

bool isEditable(const QWidget *widget)
{
    // The edit inside a combo box or a spin box is part of that control.
    const QWidget *parent = widget->parentWidget();
    const bool inner
        = qobject_cast<const QComboBox *>(parent) || qobject_cast<const QAbstractSpinBox *>(parent);
    const bool field = (qobject_cast<const QLineEdit *>(widget) && !inner)
                       || qobject_cast<const QComboBox *>(widget)
                       || qobject_cast<const QAbstractSpinBox *>(widget)
                       || qobject_cast<const QPlainTextEdit *>(widget)
                       || qobject_cast<const QTextEdit *>(widget);
    return field && !isReadOnly(widget);
}

bool takesTabFocus(const QWidget *widget, const QWidget *form)
{
    return widget->isEnabled() && widget->isVisibleTo(form)
           && (widget->focusPolicy() & Qt::TabFocus);
}

} // namespace

QWidget *TfrmRODefault::nextInputField(QWidget *from) const
{
    for (QWidget *widget = from->nextInFocusChain(); widget != from;
         widget = widget->nextInFocusChain()) {
        if (isInputField(widget) && takesTabFocus(widget, this))
            return widget;
    }
    return nullptr;
}

bool TfrmRODefault::isInputField(QWidget *widget) const
{
    if (!isEditable(widget) || !isAncestorOf(widget))
        return false;
    // What lies in an embedded list frame belongs to the frame.
    for (QWidget *parent = widget->parentWidget(); parent != this;
         parent = parent->parentWidget()) {
        if (qobject_cast<TframeListView *>(parent))
            return false;
    }
    return true;
}

void TfrmRODefault::putFooterLast()
{
    QList<QWidget *> footer;
    QWidget *lastField = nullptr;
    for (QWidget *widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        if (widget->focusPolicy() == Qt::NoFocus)
            continue;   // Qt orders only widgets that take the focus
        if (pnlFooter->isAncestorOf(widget))
            footer.append(widget);
        else
            lastField = widget;
    }
    for (QWidget *button : std::as_const(footer)) {
        if (lastField)
            setTabOrder(lastField, button);
        lastField = button;
    }
}

void TfrmRODefault::skipReadOnlyStart()
{
    if (focusWidget())
        return;
    for (QWidget *widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        if (!takesTabFocus(widget, this))
            continue;
        // Anything else is where Qt starts a form anyway.
        if (!qobject_cast<QLineEdit *>(widget) || !isReadOnly(widget))
            return;
        if (QWidget *field = nextInputField(widget))
            field->setFocus(Qt::TabFocusReason);
        return;
    }
}

bool TfrmRODefault::commitFields()
{
    for (QWidget *widget = nextInFocusChain(); widget != this; widget = widget->nextInFocusChain()) {
        if (!widget->isEnabled() || !widget->isVisibleTo(this))
            continue;
        if (auto *typed = qobject_cast<TTypedEdit *>(widget)) {
            if (typed->commit())
                continue;
            Messages::error(typed->problem());
            typed->setFocus(Qt::OtherFocusReason);
            typed->selectAll();
            return false;
        }
        if (auto *spin = qobject_cast<QAbstractSpinBox *>(widget))
            spin->interpretText();
    }
    return true;
}

bool TfrmRODefault::cancels(const QAbstractButton *button) const
{
    const auto *bitButton = qobject_cast<const TBitBtn *>(button);
    return button == btnCancel || (bitButton && bitButton->modalResult() == mrCancel);
}

bool TfrmRODefault::stopsButton(QObject *watched, QEvent *event)
{
    auto *button = qobject_cast<QAbstractButton *>(watched);
    if (!button || !button->isEnabled())
        return false;
    bool acts = false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        acts = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        break;
    case QEvent::KeyPress: {
        const auto *key = static_cast<QKeyEvent *>(event);
        acts = !key->isAutoRepeat()
               && (key->key() == Qt::Key_Space || key->key() == Qt::Key_Return
                   || key->key() == Qt::Key_Enter);
        break;
    }
    case QEvent::Shortcut:
        // An ambiguous accelerator only moves the focus between buttons.
        acts = !static_cast<QShortcutEvent *>(event)->isAmbiguous();
        break;
    default:
        break;
    }
    return acts && !cancels(button) && !commitFields();
}

bool TfrmRODefault::eventFilter(QObject *watched, QEvent *event)
{
    if (stopsButton(watched, event))
        return true;
    if (event->type() != QEvent::KeyPress || qobject_cast<QAbstractButton *>(watched))
        return QDialog::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
        if (QWidget *next = nextInputField(static_cast<QWidget *>(watched)))
            next->setFocus(Qt::TabFocusReason);
        return true;
    }
    if (qobject_cast<QComboBox *>(watched))
        m_lastComboKey = key->key();
    return false;
}
