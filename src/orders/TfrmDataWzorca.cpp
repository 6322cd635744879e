#include "TfrmDataWzorca.h"

#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>

TfrmDataWzorca::TfrmDataWzorca(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmDataWzorca"));
    setWindowTitle(QStringLiteral("Data kopiowania z wzorca"));
    lblHeader->setText(QStringLiteral("Data kopiowania z wzorca"));

    lblData = new QLabel(QStringLiteral("Data"), pnlClient);
    lblData->setObjectName(QStringLiteral("lblData"));
    deData = new QDateEdit(QDate::currentDate(), pnlClient);
    deData->setObjectName(QStringLiteral("deData"));
    deData->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
    deData->setCalendarPopup(true);
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
