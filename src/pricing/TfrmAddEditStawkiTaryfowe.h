#pragma once

#include "TfrmRODefault.h"

class QComboBox;
class QLabel;
class QLineEdit;
class TLimitedFloatEdit;
class TLimitedSpinEdit;

// Adds a tariff or corrects one. The kind of an existing tariff is shown
// but cannot change. Storage (MAGAZYNOWANIE) and other (INNE) are not
// edited here: a new tariff stores 0 in both, an edit keeps them.
class TfrmAddEditStawkiTaryfowe : public TfrmRODefault
{
    Q_OBJECT

public:
    enum Mode { Insert, Edit };

    // tariffKey: the tariff to correct in Edit mode; unused for Insert.
    TfrmAddEditStawkiTaryfowe(QWidget *owner, Mode mode, int tariffKey);

    Mode mode() const { return m_mode; }
    int tariffKey() const { return m_tariffKey; }

    QComboBox *cbFilter;
    QLineEdit *edNazwaStawki;
    TLimitedSpinEdit *seNumerStawki;
    TLimitedFloatEdit *seStawkaKM;        // per laden kilometre
    TLimitedFloatEdit *seStawkaKMPusty;   // per tonne (KWOTA_ZA_KM)
    TLimitedFloatEdit *seStawkaPaleta;
    TLimitedFloatEdit *seStawkaGodzina;

protected:
    void FormShow() override;

private:
    void btnOkClick();
    TLimitedFloatEdit *amountEdit(const QString &name);

    Mode m_mode;
    int m_tariffKey;
    bool m_loaded = false;
};
