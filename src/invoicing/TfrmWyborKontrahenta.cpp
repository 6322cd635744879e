#include "TfrmWyborKontrahenta.h"

#include "InvoiceHeaderChoices.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TfrmWybierzZlecenia.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

TfrmWyborKontrahenta::TfrmWyborKontrahenta(QWidget *owner, int clientKey, int orderKey)
    : TfrmRODefault(owner), m_clientKey(clientKey), m_orderKey(orderKey)
{
    setObjectName(QStringLiteral("frmWyborKontrahenta"));
    setWindowTitle(QStringLiteral("Fakturowanie"));
    lblHeader->setText(QStringLiteral("Fakturowanie"));
    lblHeaderDescription->setText(
        QStringLiteral("Wybierz kontrahenta, którego zlecenia chcesz zafakturować"));
    btnOk->setText(QStringLiteral("&Dalej"));
    btnOk->setModalResult(0);

    cbKontrahent = new QComboBox(pnlClient);
    cbKontrahent->setObjectName(QStringLiteral("cbKontrahent"));
    cbKontrahent->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cbKontrahent->setMinimumContentsLength(30);
    auto *label = new QLabel(QStringLiteral("Kontrahent:"), pnlClient);
    label->setBuddy(cbKontrahent);
    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 16, 16, 12);
    layout->addWidget(label, 0, 0);
    layout->addWidget(cbKontrahent, 0, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(1, 1);

    connect(btnOk, &TBitBtn::clicked, this, &TfrmWyborKontrahenta::btnDalejClick);
    resize(480, 220);
}

void TfrmWyborKontrahenta::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    cbKontrahent->addItem(QStringLiteral("wszyscy"), 0);
    if (Connection *database = session().Database) {
        for (const InvoiceHeaderChoices::Item &client :
             InvoiceHeaderChoices::loadClients(*database))
            cbKontrahent->addItem(client.text, client.key);
    }
    cbKontrahent->setCurrentIndex(std::max(cbKontrahent->findData(m_clientKey), 0));
}

int TfrmWyborKontrahenta::client() const
{
    return cbKontrahent->currentData().toInt();
}

void TfrmWyborKontrahenta::btnDalejClick()
{
    const auto invoicing = TfrmRODefault::create<TfrmWybierzZlecenia>(this, client(), m_orderKey);
    invoicing->showModal();
    done(mrOk);
}
