#include "TfrmKierowcy.h"

#include "SessionContext.h"
#include "TfrmAddEditKierowcy.h"

#include <QLabel>

TfrmKierowcy::TfrmKierowcy(QWidget *owner, Mode mode, int currentKey)
    : TfrmKierowcy(owner, mode, currentKey, Drivers::Staff::All)
{
}

TfrmKierowcy::TfrmKierowcy(QWidget *owner, Mode mode, int currentKey, Drivers::Staff staff)
    : TfrmRegister(owner,
                   std::make_unique<TableRegister<TKierowcyObj>>(Drivers::listing(staff)), mode,
                   currentKey),
      m_staff(staff)
{
    setObjectName(QStringLiteral("frmKierowcy"));
    setWindowTitle(QStringLiteral("Kierowcy"));
    lblHeader->setText(QStringLiteral("Kierowcy"));
    lblHeaderDescription->setText(
        QStringLiteral("Kierowcy firmy: dane osobowe, adresy i telefony."));
}

std::unique_ptr<TfrmRecordEditor> TfrmKierowcy::createEditor(int key)
{
    return std::make_unique<TfrmAddEditKierowcy>(this, key, m_staff);
}

TfrmMechanicy::TfrmMechanicy(QWidget *owner, Mode mode, int currentKey)
    : TfrmKierowcy(owner, mode, currentKey, Drivers::Staff::Mechanics)
{
    setObjectName(QStringLiteral("frmMechanicy"));
    setWindowTitle(QStringLiteral("Mechanicy"));
    lblHeader->setText(QStringLiteral("Mechanicy"));
    lblHeaderDescription->setText(
        QStringLiteral("Mechanicy firmy: kierowcy na stanowisku mechanika."));
}
