#include "TfrmMiejscowosci.h"

#include "Cities.h"
#include "TfrmAddEditMiejscowosci.h"

#include <QLabel>

TfrmMiejscowosci::TfrmMiejscowosci(QWidget *owner, Mode mode, int currentKey)
    : TfrmRegister(owner, std::make_unique<TableRegister<TMiastaObj>>(Cities::listing()), mode,
                   currentKey)
{
    setObjectName(QStringLiteral("frmMiejscowosci"));
    setWindowTitle(QStringLiteral("Miejscowości"));
    lblHeader->setText(QStringLiteral("Miejscowości"));
    lblHeaderDescription->setText(
        QStringLiteral("Miasta tras zleceń: nazwa, kod pocztowy i kraj."));
}

std::unique_ptr<TfrmRecordEditor> TfrmMiejscowosci::createEditor(int key)
{
    return std::make_unique<TfrmAddEditMiejscowosci>(this, key);
}
