#include "TfrmWyborWspolnika.h"

#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TRadioGroup.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

TfrmWyborWspolnika::TfrmWyborWspolnika(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmWyborWspolnika"));
    setWindowTitle(QStringLiteral("Zestawienie"));
    lblHeader->setText(QStringLiteral("Zestawienie"));
    lblHeaderDescription->setText(QStringLiteral("Zlecenia wg kontrahenta"));
    btnOk->setText(QStringLiteral("Dalej >>>"));

    lblWspolnik = new QLabel(QStringLiteral("Dla spedytora:"), pnlClient);
    lblWspolnik->setObjectName(QStringLiteral("lblWspolnik"));
    cbWspolnik = new QComboBox(pnlClient);
    cbWspolnik->setObjectName(QStringLiteral("cbWspolnik"));
    cbWspolnik->setMinimumWidth(200);
    lblWspolnik->setBuddy(cbWspolnik);
    cbAll = new QCheckBox(QStringLiteral("Pokaż wszystkie"), pnlClient);
    cbAll->setObjectName(QStringLiteral("cbAll"));

    const QDate today = QDate::currentDate();
    lblDaty = new QLabel(QStringLiteral("Daty zafakturowania:"), pnlClient);
    lblDaty->setObjectName(QStringLiteral("lblDaty"));
    lblOd = new QLabel(QStringLiteral("Od:"), pnlClient);
    lblOd->setObjectName(QStringLiteral("lblOd"));
    deOd = new TDateEdit(pnlClient);
    deOd->setObjectName(QStringLiteral("deOd"));
    deOd->setDate(PartnersSelection::monthBefore(today));
    lblOd->setBuddy(deOd);
    lblDo = new QLabel(QStringLiteral("do:"), pnlClient);
    lblDo->setObjectName(QStringLiteral("lblDo"));
    deDo = new TDateEdit(pnlClient);
    deDo->setObjectName(QStringLiteral("deDo"));
    deDo->setDate(today);
    lblDo->setBuddy(deDo);

    rbAll = new QRadioButton(QStringLiteral("Całość"), pnlClient);
    rbAll->setObjectName(QStringLiteral("rbAll"));
    rbAll->setChecked(true);
    rbKraj = new QRadioButton(QStringLiteral("Kraj"), pnlClient);
    rbKraj->setObjectName(QStringLiteral("rbKraj"));
    rbZagr = new QRadioButton(QStringLiteral("Zagranica"), pnlClient);
    rbZagr->setObjectName(QStringLiteral("rbZagr"));
    rgwar = new TRadioGroup({QStringLiteral("Wszystkie "), QStringLiteral("Haulix"),
                             QStringLiteral("Spedycja")},
                            3, pnlClient);
    rgwar->setObjectName(QStringLiteral("rgwar"));
    rgwar->setTitle(QStringLiteral("Zlecenia"));
    rgwar->setItemIndex(0);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(lblWspolnik, 0, 0);
    layout->addWidget(cbWspolnik, 0, 1, 1, 3);
    layout->addWidget(cbAll, 1, 1, 1, 3);
    layout->addWidget(lblDaty, 2, 0, 1, 4);
    layout->addWidget(lblOd, 3, 0, Qt::AlignRight);
    layout->addWidget(deOd, 3, 1);
    layout->addWidget(lblDo, 3, 2, Qt::AlignRight);
    layout->addWidget(deDo, 3, 3);
    layout->addWidget(rbAll, 4, 1);
    layout->addWidget(rbKraj, 4, 2);
    layout->addWidget(rbZagr, 4, 3);
    layout->addWidget(rgwar, 5, 0, 1, 4);
    layout->setColumnStretch(4, 1);
    layout->setRowStretch(6, 1);

    connect(cbAll, &QCheckBox::clicked, this, &TfrmWyborWspolnika::cbAllClick);
    resize(480, 330);
}

void TfrmWyborWspolnika::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    setROShowHeader(true);
    TfrmRODefault::FormCreate();
    fillPartners();
}

void TfrmWyborWspolnika::fillPartners()
{
    Connection *database = session().Database;
    if (!database)
        return;
    reportFailures(QStringLiteral("Nie można odczytać listy spedytorów"), [&] {
        for (const PartnersSelection::Partner &partner : PartnersSelection::partners(*database))
            cbWspolnik->addItem(partner.text, partner.key);
    });
    cbWspolnik->model()->sort(0);
    // The first of the sorted items without a partner's key, if any.
    cbWspolnik->setCurrentIndex(cbWspolnik->findData(0));
}

void TfrmWyborWspolnika::cbAllClick()
{
    cbWspolnik->setEnabled(!cbAll->isChecked());
}

PartnersSelection TfrmWyborWspolnika::selection() const
{
    PartnersSelection selection;
    selection.from = deOd->date();
    selection.to = deDo->date();
    selection.fromText = deOd->text();
    selection.toText = deDo->text();
    selection.region = rbKraj->isChecked() ? PartnersSelection::Domestic
        : rbZagr->isChecked()              ? PartnersSelection::Foreign
                                           : PartnersSelection::AllRegions;
    switch (rgwar->itemIndex()) {
    case 1:
        selection.executor = PartnersSelection::OwnCompany;
        break;
    case 2:
        selection.executor = PartnersSelection::OtherCarriers;
        break;
    default:
        selection.executor = PartnersSelection::AnyExecutor;
    }
    if (cbWspolnik->currentIndex() >= 0)
        selection.partner = cbWspolnik->currentData().toInt();
    selection.partnerText = cbWspolnik->currentText();
    selection.showAll = cbAll->isChecked();
    return selection;
}
