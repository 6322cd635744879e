#include "TfrmTerminy.h"

#include "LinkButton.h"
#include "DbError.h"
#include "ReportFailures.h"
#include "TframeListView.h"
#include "Privileges.h"
#include "RecordReader.h"
#include "Reminders.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TfrmAddEditTerminy.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>

TfrmTerminy::TfrmTerminy(QWidget *owner, std::unique_ptr<RegisterModel> model)
    : TfrmRegister(owner, std::move(model), Browse, 0)
{
    acWykonane = new QAction(QStringLiteral("Wy&konane"), this);
    acWykonane->setObjectName(QStringLiteral("acWykonane"));
    connect(acWykonane, &QAction::triggered, this, &TfrmTerminy::acWykonaneExecute);
    btnWykonane = TBitBtn::create(QStringLiteral("Wy&konane"), QStringLiteral("btnWykonane"),
                                  pnlFooter);
    linkButton(btnWykonane, acWykonane);
    if (auto *footer = qobject_cast<QBoxLayout *>(pnlFooter->layout()))
        footer->insertWidget(0, btnWykonane);
    frameListView1->pmMain->addAction(acWykonane);
}

std::unique_ptr<TfrmRecordEditor> TfrmTerminy::createEditor(int key)
{
    return std::make_unique<TfrmAddEditTerminy>(this, key, newReminderDay());
}

void TfrmTerminy::UpdateControls()
{
    TfrmRegister::UpdateControls();
    acWykonane->setEnabled(selectedKey() != 0);
}

void TfrmTerminy::acWykonaneExecute()
{
    const int key = selectedKey();
    if (key == 0 || !Privileges::require(Privileges::Edit, this))
        return;
    try {
        Connection &database = *session().Database;
        const bool done = recordByKey<TTerminyObj>(database, key).WYKONANE != 0;
        Reminders::setDone(database, key, !done);
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Nie udało się oznaczyć terminu."), error);
    }
    reloadAndSelect(key);
}
