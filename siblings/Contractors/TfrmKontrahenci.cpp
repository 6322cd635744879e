#include "TfrmKontrahenci.h"

#include "Contractors.h"
#include "TfrmAddEditKontrahenci.h"

#include <QLabel>

TfrmKontrahenci::TfrmKontrahenci(QWidget *owner, Mode mode, int currentKey)
    : TfrmRegister(owner,
                   std::make_unique<TableRegister<TKontrahenciObj>>(Contractors::listing()), mode,
                   currentKey)
{
    setObjectName(QStringLiteral("frmKontrahenci"));
    setWindowTitle(QStringLiteral("Kontrahenci"));
    lblHeader->setText(QStringLiteral("Kontrahenci"));
    lblHeaderDescription->setText(
        QStringLiteral("Zleceniodawcy i przewoźnicy: dane firm, płatności i kontakty."));
    resize(1000, 560);
}

std::unique_ptr<TfrmRecordEditor> TfrmKontrahenci::createEditor(int key)
{
    return std::make_unique<TfrmAddEditKontrahenci>(this, key);
}
