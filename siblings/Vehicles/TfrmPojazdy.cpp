#include "TfrmPojazdy.h"

#include "TfrmAddEditPojazdy.h"
#include "Vehicles.h"

#include <QLabel>

TfrmPojazdy::TfrmPojazdy(QWidget *owner, Mode mode, int currentKey)
    : TfrmRegister(owner, std::make_unique<TableRegister<TPojazdyObj>>(Vehicles::listing()),
                   mode, currentKey)
{
    setObjectName(QStringLiteral("frmPojazdy"));
    setWindowTitle(QStringLiteral("Pojazdy"));
    lblHeader->setText(QStringLiteral("Pojazdy"));
    lblHeaderDescription->setText(
        QStringLiteral("Pojazdy firmy z ich kierowcami i naczepami domyślnymi."));
}

std::unique_ptr<TfrmRecordEditor> TfrmPojazdy::createEditor(int key)
{
    return std::make_unique<TfrmAddEditPojazdy>(this, key);
}
