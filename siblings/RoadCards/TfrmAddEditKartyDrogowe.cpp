#include "TfrmAddEditKartyDrogowe.h"

#include "DbError.h"
#include "ReportFailures.h"
#include "RecordReader.h"
#include "RoadCards.h"
#include "SessionContext.h"
#include "TPojazdyObj.h"

#include <QComboBox>
#include <QLabel>

TfrmAddEditKartyDrogowe::TfrmAddEditKartyDrogowe(QWidget *owner, int key, int orderKey)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TKarty_drObj>>(
                           *session().Database, RoadCards::editing(orderKey)),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditKartyDrogowe"));
    setWindowTitle(QStringLiteral("Karta drogowa"));
    lblHeader->setText(QStringLiteral("Karta drogowa"));
    lblHeaderDescription->setText(QStringLiteral(
        "Przejazd pojazdu: kierowca, naczepa, stan licznika i paliwa na początku i na końcu."));
    if (auto *vehicle = qobject_cast<QComboBox *>(field(QStringLiteral("cbPojazd"))))
        connect(vehicle, &QComboBox::activated, this, &TfrmAddEditKartyDrogowe::vehicleChosen);
}

TableRecordEditing<TKarty_drObj> &TfrmAddEditKartyDrogowe::card()
{
    return static_cast<TableRecordEditing<TKarty_drObj> &>(editing());
}

void TfrmAddEditKartyDrogowe::vehicleChosen()
{
    // What was typed so far stays; the vehicle only fills what is empty.
    takeValues();
    TKarty_drObj &record = card().record();
    try {
        RoadCards::takeOverVehicle(record,
                                   recordByKey<TPojazdyObj>(record.connection(), record.IDPOJAZD));
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Nie udało się wczytać danych pojazdu."), error);
    }
    showRecord();
}
