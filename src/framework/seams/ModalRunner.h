#pragma once

#include "Seam.h"

class QDialog;

// Every dialog a form opens modally runs through here. Production runs the
// dialog's own event loop; a test answers in place of the user.
class ModalRunner
{
public:
    virtual ~ModalRunner() = default;
    // Shows the dialog modally and returns its result (1 OK, 2 cancel for
    // the forms of this module).
    virtual int run(QDialog &dialog) = 0;
};

class ExecModalRunner final : public ModalRunner
{
public:
    int run(QDialog &dialog) override;
};

using ModalRunners = Seam<ModalRunner, ExecModalRunner>;

// Runs a dialog through the installed runner.
int runModal(QDialog &dialog);
