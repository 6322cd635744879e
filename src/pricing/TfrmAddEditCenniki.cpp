#include "TfrmAddEditCenniki.h"

#include "TLimitedFloatEdit.h"

#include <QGridLayout>
#include <QLabel>

TfrmAddEditCenniki::TfrmAddEditCenniki(QWidget *owner, const QString &kilograms,
                                       const QString &kilometres, double amount)
    : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmAddEditCenniki"));
    setWindowTitle(QStringLiteral("Edycja stawki"));
    lblHeader->setText(QStringLiteral("Edycja stawki"));
    lblHeaderDescription->setText(QStringLiteral("Pozycja cennika"));

    lblKg = new QLabel(kilograms, pnlClient);
    lblKg->setObjectName(QStringLiteral("lblKg"));
    lblKm = new QLabel(kilometres, pnlClient);
    lblKm->setObjectName(QStringLiteral("lblKm"));
    edStawka = new TLimitedFloatEdit(pnlClient);
    edStawka->setObjectName(QStringLiteral("edStawka"));
    edStawka->setDecimals(2);
    edStawka->setRange(-9999999.99, 9999999.99);
    edStawka->setMaxLength(13);
    edStawka->setGroupSeparatorShown(true);
    edStawka->setValue(amount);
    edStawka->setAlignment(Qt::AlignRight);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(new QLabel(QStringLiteral("Kilogramy:"), pnlClient), 0, 0);
    layout->addWidget(lblKg, 0, 1);
    layout->addWidget(new QLabel(QStringLiteral("Kilometry:"), pnlClient), 1, 0);
    layout->addWidget(lblKm, 1, 1);
    auto *caption = new QLabel(QStringLiteral("Stawka:"), pnlClient);
    caption->setBuddy(edStawka);
    layout->addWidget(caption, 2, 0);
    layout->addWidget(edStawka, 2, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(3, 1);
    resize(360, 260);
}

double TfrmAddEditCenniki::amount() const
{
    return edStawka->value();
}
