#include "TfrmAddEditKierowcy.h"

#include "SessionContext.h"

#include <QLabel>

TfrmAddEditKierowcy::TfrmAddEditKierowcy(QWidget *owner, int key, Drivers::Staff staff)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TKierowcyObj>>(
                           *session().Database, Drivers::editing(staff)),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditKierowcy"));
    setWindowTitle(QStringLiteral("Dodaj/popraw kierowcę"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie kierowców"));
    lblHeaderDescription->setText(
        QStringLiteral("Dane kierowcy: imiona, adres, telefony i numery identyfikacyjne."));
}
