#include "TfrmPokazTerminy.h"

#include "Reminders.h"
#include "SessionContext.h"

#include <QLabel>

TfrmPokazTerminy::TfrmPokazTerminy(QWidget *owner, Mode, int)
    : TfrmTerminy(owner, std::make_unique<TableRegister<TTerminyObj>>(
                             Reminders::due(session().UserID, QDate::currentDate())))
{
    setObjectName(QStringLiteral("frmPokazTerminy"));
    setWindowTitle(QStringLiteral("Terminy na dziś"));
    lblHeader->setText(QStringLiteral("Terminy na dziś"));
    lblHeaderDescription->setText(QStringLiteral(
        "Twoje terminy na dziś i zaległe, jeszcze niewykonane. Wykonane znikają z listy."));
    resize(860, 420);
}
