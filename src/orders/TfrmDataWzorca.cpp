#include "TfrmDataWzorca.h"

#include "TDateEdit.h"

#include <QGridLayout>
#include <QLabel>

TfrmDataWzorca::TfrmDataWzorca(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmDataWzorca"));
    setWindowTitle(QStringLiteral("Data kopiowania z wzorca"));
    lblHeader->setText(QStringLiteral("Data kopiowania z wzorca"));

    lblData = new QLabel(QStringLiteral("Data"), pnlClient);
    lblData->setObjectName(QStringLiteral("lblData"));
    deData = new TDateEdit(pnlClient);
    deData->setObjectName(QStringLiteral("deData"));
    deData->setEmptyAllowed(false);
    deData->setDate(QDate::currentDate());
    lblData->setBuddy(deData);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(lblData, 0, 0);
    layout->addWidget(deData, 0, 1);
    layout->setColumnStretch(2, 1);
    layout->setRowStretch(1, 1);
    resize(360, 200);
}

void TfrmDataWzorca::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
}

QDate TfrmDataWzorca::date() const
{
    return deData->date();
}
