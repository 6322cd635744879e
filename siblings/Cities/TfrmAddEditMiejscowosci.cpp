#include "TfrmAddEditMiejscowosci.h"

#include "Cities.h"
#include "SessionContext.h"

#include <QLabel>

TfrmAddEditMiejscowosci::TfrmAddEditMiejscowosci(QWidget *owner, int key)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TMiastaObj>>(*session().Database,
                                                                       Cities::editing()),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditMiejscowosci"));
    setWindowTitle(QStringLiteral("Dodaj/popraw miejscowość"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie miejscowości"));
    lblHeaderDescription->setText(QStringLiteral("Nazwa miasta, jego kod pocztowy i kraj."));
    resize(500, 260);
}
