#pragma once

#include <Qt>
#include <QString>

class QWidget;

// What a user does with the keyboard and the mouse, for widgets of this
// program or of a loaded library alike.
namespace Typing {

// Replaces a field's text by typing: selects what is there, deletes it and
// types the new text key by key.
void into(QWidget *field, const QString &text);
void click(QWidget *button);

// Shows a window and makes it the active one, so that keys go where its
// focus is and accelerators such as Alt+Z work.
void activate(QWidget *window);
// Types into whatever has the focus, key by key; the focus may move on
// the way ("\n" is Enter, "\t" Tab).
void keys(const QString &text);
// One key, with modifiers, to whatever has the focus.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// Alt and a letter, a button's accelerator. The button is drawn pressed
// for a moment before it acts; this returns after that moment.
void accelerator(Qt::Key letter);
// Whether the window closes (at once or within two seconds).
bool closes(const QWidget *window);

} // namespace Typing
