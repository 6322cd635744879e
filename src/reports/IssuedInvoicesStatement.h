#pragma once

class QWidget;

// "Wystawione faktury" of the register's statements menu: asks for the
// period and the executor, builds the statement's records under the wait
// window and previews or prints the statement.
class IssuedInvoicesStatement
{
public:
    static void run(QWidget *owner);
};
