#include "TfrmKartyDrogowe.h"

#include "RoadCards.h"
#include "TfrmAddEditKartyDrogowe.h"

#include <QLabel>

TfrmKartyDrogowe::TfrmKartyDrogowe(QWidget *owner, Mode mode, int currentKey)
    : TfrmRegister(owner, std::make_unique<TableRegister<TKarty_drObj>>(RoadCards::listing()),
                   mode, currentKey)
{
    setObjectName(QStringLiteral("frmKartyDrogowe"));
    setWindowTitle(QStringLiteral("Karty drogowe"));
    lblHeader->setText(QStringLiteral("Karty drogowe"));
    lblHeaderDescription->setText(
        QStringLiteral("Przejazdy pojazdów: kierowca, stan licznika i paliwa, kilometry."));
    resize(960, 520);
}

std::unique_ptr<TfrmRecordEditor> TfrmKartyDrogowe::createEditor(int key)
{
    return std::make_unique<TfrmAddEditKartyDrogowe>(this, key);
}
