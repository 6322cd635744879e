#pragma once

#include <QString>

class QWidget;

// What a user does with the keyboard and the mouse, for widgets of this
// program or of a loaded library alike.
namespace Typing {

// Replaces a field's text by typing: selects what is there, deletes it and
// types the new text key by key.
void into(QWidget *field, const QString &text);
void click(QWidget *button);

} // namespace Typing
