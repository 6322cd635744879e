#include "TfrmAddEditStawkiTaryfowe.h"

#include "SessionContext.h"
#include "TBitBtn.h"
#include "TLimitedFloatEdit.h"
#include "TLimitedSpinEdit.h"
#include "TTaryfyprzewoznikaObj.h"
#include "TariffKinds.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr double MaximumAmount = 99999.0;
constexpr int AmountCharacters = 7;

} // namespace

TfrmAddEditStawkiTaryfowe::TfrmAddEditStawkiTaryfowe(QWidget *owner, Mode mode, int tariffKey)
    : TfrmRODefault(owner), m_mode(mode), m_tariffKey(tariffKey)
{
    setObjectName(QStringLiteral("frmAddEditStawkiTaryfowe"));
    setWindowTitle(QStringLiteral("Dodaj/popraw stawkę taryfową"));
    lblHeader->setText(QStringLiteral("Dodawanie/Poprawianie stawek taryfowych"));
    lblHeaderDescription->setText(
        QStringLiteral("Dodaj lub popraw taryfę własną lub przewoźnika."));
    btnOk->setModalResult(0);

    cbFilter = new QComboBox(pnlClient);
    cbFilter->setObjectName(QStringLiteral("cbFilter"));
    cbFilter->addItems(TariffKinds::names());
    edNazwaStawki = new QLineEdit(pnlClient);
    edNazwaStawki->setObjectName(QStringLiteral("edNazwaStawki"));
    edNazwaStawki->setMaxLength(100);
    seNumerStawki = new TLimitedSpinEdit(pnlClient);
    seNumerStawki->setObjectName(QStringLiteral("seNumerStawki"));
    seNumerStawki->setRange(0, 99999);
    seStawkaKM = amountEdit(QStringLiteral("seStawkaKM"));
    seStawkaKMPusty = amountEdit(QStringLiteral("seStawkaKMPusty"));
    seStawkaPaleta = amountEdit(QStringLiteral("seStawkaPaleta"));
    seStawkaGodzina = amountEdit(QStringLiteral("seStawkaGodzina"));

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    const auto addRow = [&](const QString &caption, QWidget *field, bool withUnit) {
        const int row = layout->rowCount();
        auto *label = new QLabel(caption, pnlClient);
        label->setBuddy(field);
        layout->addWidget(label, row, 0);
        layout->addWidget(field, row, 1);
        if (withUnit)
            layout->addWidget(new QLabel(QStringLiteral("pln"), pnlClient), row, 2);
    };
    addRow(QStringLiteral("Rodzaj stawki"), cbFilter, false);
    addRow(QStringLiteral("Nazwa stawki"), edNazwaStawki, false);
    addRow(QStringLiteral("Numer stawki"), seNumerStawki, false);
    addRow(QStringLiteral("Kwota za kilometr"), seStawkaKM, true);
    addRow(QStringLiteral("Kwota za tonę"), seStawkaKMPusty, true);
    addRow(QStringLiteral("Kwota za paletę"), seStawkaPaleta, true);
    addRow(QStringLiteral("Kwota za godzinę"), seStawkaGodzina, true);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(layout->rowCount(), 1);

    connect(btnOk, &TBitBtn::clicked, this, &TfrmAddEditStawkiTaryfowe::btnOkClick);
    resize(540, 380);
}

TLimitedFloatEdit *TfrmAddEditStawkiTaryfowe::amountEdit(const QString &name)
{
    auto *edit = new TLimitedFloatEdit(pnlClient);
    edit->setObjectName(name);
    edit->setDecimals(2);
    edit->setRange(0.0, MaximumAmount);
    edit->setMaxLength(AmountCharacters);
    return edit;
}

void TfrmAddEditStawkiTaryfowe::FormShow()
{
    TfrmRODefault::FormShow();
    if (m_loaded)
        return;
    m_loaded = true;
    Connection *database = session().Database;
    if (m_mode == Insert || !database) {
        cbFilter->setCurrentIndex(TariffKinds::Carriers);
        return;
    }
    const TTaryfyprzewoznikaObj tariff = TTaryfyprzewoznikaObj(*database).SelectById(m_tariffKey);
    cbFilter->setCurrentIndex(tariff.TARYFAWLASNA);
    cbFilter->setEnabled(false);
    edNazwaStawki->setText(tariff.NAZWA_STAWKI);
    seNumerStawki->setValue(tariff.NUMER_STAWKI);
    seStawkaKM->setValue(tariff.KWOTA_ZA_KM_LAD);
    seStawkaKMPusty->setValue(tariff.KWOTA_ZA_KM);
    seStawkaPaleta->setValue(tariff.KWOTA_ZA_PALETE);
    seStawkaGodzina->setValue(tariff.KWOTA_ZA_GODZ);
}

void TfrmAddEditStawkiTaryfowe::btnOkClick()
{
    Connection *database = session().Database;
    if (!database)
        return;
    TTaryfyprzewoznikaObj tariff(*database);
    if (m_mode == Edit)
        tariff = tariff.SelectById(m_tariffKey);
    else
        tariff.TARYFAWLASNA = cbFilter->currentIndex();
    tariff.NUMER_STAWKI = seNumerStawki->value();
    tariff.KWOTA_ZA_KM_LAD = seStawkaKM->value();
    tariff.KWOTA_ZA_KM = seStawkaKMPusty->value();
    tariff.KWOTA_ZA_PALETE = seStawkaPaleta->value();
    tariff.NAZWA_STAWKI = edNazwaStawki->text();
    tariff.KWOTA_ZA_GODZ = seStawkaGodzina->value();
    if (m_mode == Edit)
        tariff.Update();
    else if (!tariff.Insert())
        return;   // the failure was shown; what was typed stays
    done(mrOk);
}
