#include "TfrmAddEditTerminy.h"

#include "Reminders.h"
#include "SessionContext.h"

#include <QLabel>

TfrmAddEditTerminy::TfrmAddEditTerminy(QWidget *owner, int key, QDate day)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TTerminyObj>>(
                           *session().Database, Reminders::editing(session().UserID, day)),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditTerminy"));
    setWindowTitle(QStringLiteral("Dodaj/popraw termin"));
    lblHeader->setText(QStringLiteral("Termin"));
    lblHeaderDescription->setText(
        QStringLiteral("Dzień, godzina (albo cały dzień) i to, o czym przypomnieć."));
    resize(560, 260);
}
