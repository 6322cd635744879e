#include "TfrmAddEditMiejsca.h"

#include "Places.h"
#include "SessionContext.h"

#include <QLabel>

TfrmAddEditMiejsca::TfrmAddEditMiejsca(QWidget *owner, int key)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TMiejscaObj>>(*session().Database,
                                                                        Places::editing()),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditMiejsca"));
    setWindowTitle(QStringLiteral("Dodaj/popraw miejsce"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie miejsc"));
    lblHeaderDescription->setText(
        QStringLiteral("Miejsce załadunku lub rozładunku: nazwa, adres i kraj."));
    resize(480, 330);
}
