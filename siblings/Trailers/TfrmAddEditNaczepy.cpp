#include "TfrmAddEditNaczepy.h"

#include "SessionContext.h"
#include "Trailers.h"

#include <QLabel>

TfrmAddEditNaczepy::TfrmAddEditNaczepy(QWidget *owner, int key)
    : TfrmRecordEditor(owner,
                       std::make_unique<TableRecordEditing<TNaczepyObj>>(*session().Database,
                                                                        Trailers::editing()),
                       key)
{
    setObjectName(QStringLiteral("frmAddEditNaczepy"));
    setWindowTitle(QStringLiteral("Dodaj/popraw naczepę"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie naczep"));
    lblHeaderDescription->setText(QStringLiteral("Dane naczepy, jej wymiary i ładowność."));
}
