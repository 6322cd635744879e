#include "TfrmAddEditPojazdy.h"

#include "SessionContext.h"
#include "Vehicles.h"

#include <QLabel>

TfrmAddEditPojazdy::TfrmAddEditPojazdy(QWidget *owner, int key)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TPojazdyObj>>(*session().Database,
                                                                        Vehicles::editing()),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditPojazdy"));
    setWindowTitle(QStringLiteral("Dodaj/popraw pojazd"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie pojazdów"));
    lblHeaderDescription->setText(
        QStringLiteral("Dane pojazdu, jego obsada i naczepa domyślna, norma paliwa."));
}
