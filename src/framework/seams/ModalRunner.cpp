#include "ModalRunner.h"

#include <QDialog>

int ExecModalRunner::run(QDialog &dialog)
{
    return dialog.exec();
}

int runModal(QDialog &dialog)
{
    return ModalRunners::instance().run(dialog);
}
