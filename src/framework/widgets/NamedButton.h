#pragma once

#include <QPushButton>
#include <QString>

#include <type_traits>

// How every form makes a named push button (or a TBitBtn): one that never
// takes Enter as the default button, since in the forms Enter moves
// between fields and in lists it belongs to the list.
template <class Button = QPushButton>
Button *namedButton(const QString &caption, const QString &name, QWidget *parent)
{
    static_assert(std::is_base_of_v<QPushButton, Button>);
    auto *button = new Button(caption, parent);
    button->setObjectName(name);
    button->setAutoDefault(false);
    return button;
}
