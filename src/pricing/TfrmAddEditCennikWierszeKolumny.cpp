#include "TfrmAddEditCennikWierszeKolumny.h"

#include "MessageService.h"
#include "PriceRanges.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TLimitedSpinEdit.h"

#include <QGridLayout>
#include <QLabel>

TfrmAddEditCennikWierszeKolumny::TfrmAddEditCennikWierszeKolumny(QWidget *owner, int value,
                                                                 const QString &duplicateTest,
                                                                 const QString &unit)
    : TfrmRODefault(owner), m_duplicateTest(duplicateTest)
{
    setObjectName(QStringLiteral("frmAddEditCennikWierszeKolumny"));
    setWindowTitle(QStringLiteral("Edycja"));
    lblHeader->setText(QStringLiteral("Edycja"));
    btnOk->setModalResult(0);

    lblWartosc = new QLabel(QStringLiteral("Zakres do:"), pnlClient);
    lblWartosc->setObjectName(QStringLiteral("lblWartosc"));
    edWartosc = new TLimitedSpinEdit(pnlClient);
    edWartosc->setObjectName(QStringLiteral("edWartosc"));
    edWartosc->setRange(0, 9999999);
    edWartosc->setMaxLength(12);
    edWartosc->setGroupSeparatorShown(true);
    edWartosc->setSuffix(unit);
    edWartosc->setValue(value);
    edWartosc->setAlignment(Qt::AlignRight);
    lblWartosc->setBuddy(edWartosc);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(lblWartosc, 0, 0);
    layout->addWidget(edWartosc, 0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);

    connect(btnOk, &TBitBtn::clicked, this, &TfrmAddEditCennikWierszeKolumny::btnOkClick);
    resize(340, 200);
}

int TfrmAddEditCennikWierszeKolumny::value() const
{
    return edWartosc->value();
}

void TfrmAddEditCennikWierszeKolumny::btnOkClick()
{
    Connection *database = session().Database;
    if (!database)
        return;
    bool taken = false;
    if (!reportFailures(QStringLiteral("Nie można sprawdzić przedziału"), [&] {
            taken = PriceRanges::exists(*database, m_duplicateTest, value());
        }))
        return;
    if (taken) {
        Messages::inform(QStringLiteral("Edycja"),
                         QStringLiteral("Pozycja z taką wartością już istnieje! Zapis do bazy "
                                        "niemożliwy."),
                         MessageService::Icon::None);
        return;
    }
    done(mrOk);
}
