#include "TfrmMiejsca.h"

#include "Places.h"
#include "TfrmAddEditMiejsca.h"

#include <QLabel>

TfrmMiejsca::TfrmMiejsca(QWidget *owner, Mode mode, int currentKey)
    : TfrmRegister(owner, std::make_unique<TableRegister<TMiejscaObj>>(Places::listing()), mode,
                   currentKey)
{
    setObjectName(QStringLiteral("frmMiejsca"));
    setWindowTitle(QStringLiteral("Miejsca załadunku i rozładunku"));
    lblHeader->setText(QStringLiteral("Miejsca załadunku i rozładunku"));
    lblHeaderDescription->setText(
        QStringLiteral("Adresy, pod którymi ładuje się i rozładowuje towar."));
}

std::unique_ptr<TfrmRecordEditor> TfrmMiejsca::createEditor(int key)
{
    return std::make_unique<TfrmAddEditMiejsca>(this, key);
}
