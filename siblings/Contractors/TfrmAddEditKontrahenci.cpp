#include "TfrmAddEditKontrahenci.h"

#include "Contractors.h"
#include "SessionContext.h"

#include <QLabel>

TfrmAddEditKontrahenci::TfrmAddEditKontrahenci(QWidget *owner, int key)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TKontrahenciObj>>(
                           *session().Database, Contractors::editing()),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditKontrahenci"));
    setWindowTitle(QStringLiteral("Dodaj/popraw kontrahenta"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie kontrahentów"));
    lblHeaderDescription->setText(QStringLiteral(
        "Dane zleceniodawcy lub przewoźnika: nazwa, NIP, adres, płatności i kontakt."));
}
