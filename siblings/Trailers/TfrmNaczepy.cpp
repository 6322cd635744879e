#include "TfrmNaczepy.h"

#include "TfrmAddEditNaczepy.h"
#include "Trailers.h"

#include <QLabel>

TfrmNaczepy::TfrmNaczepy(QWidget *owner, Mode mode, int currentKey)
    : TfrmRegister(owner, std::make_unique<TableRegister<TNaczepyObj>>(Trailers::listing()),
                   mode, currentKey)
{
    setObjectName(QStringLiteral("frmNaczepy"));
    setWindowTitle(QStringLiteral("Naczepy"));
    lblHeader->setText(QStringLiteral("Naczepy"));
    lblHeaderDescription->setText(
        QStringLiteral("Naczepy i przyczepy firmy: dokumenty, wymiary i ładowność."));
}

std::unique_ptr<TfrmRecordEditor> TfrmNaczepy::createEditor(int key)
{
    return std::make_unique<TfrmAddEditNaczepy>(this, key);
}
