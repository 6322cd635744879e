#pragma once

#include "InvoiceHeader.h"
#include "TfrmRODefault.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;
class TDateEdit;
class TFakturyObj;
class TLimitedSpinEdit;

// The header of an invoice of orders: document kind and number symbol,
// client, dates, payment, bank account, receiver, service name, remarks,
// revenue account and the service's classification code. Created on the
// invoice record the orders filled; OK writes the header into the record
// and ends with 1, Cancel leaves the record as it was. The remarks are
// read from the dialog once the invoice's position is written.
class TfrmFakturowanie : public TfrmRODefault
{
    Q_OBJECT

public:
    // The proposed revenue account follows the session's own-fleet flag as
    // it stands now.
    TfrmFakturowanie(QWidget *owner, TFakturyObj &record);

    // What the fields say now.
    InvoiceHeader header() const;
    QString remarks() const;

    QComboBox *cbDokument;           // "Rodzaj dokumentu"
    QLineEdit *edSymbolFaktury;      // "Dodatkowy symbol numeru faktury"
    QComboBox *cbKontrahenci;        // "Faktura dla"
    TDateEdit *deDataWystawienia;    // "Data wystawienia"
    TDateEdit *deDataSprzedazy;      // "Data sprzedaży", set by the caller
    QComboBox *cbSposobZaplaty;      // "Sposób zapłaty"
    TLimitedSpinEdit *seIloscDni;    // "Płatność dni"
    QComboBox *cbKonto;              // "Bank"
    QLineEdit *edOdebral;            // "Odebrał"
    QLineEdit *edOpisPozycji;        // "Nazwa usługi:"
    QPlainTextEdit *memUwagi;        // "Uwagi:"
    QComboBox *CBKsiegowe;           // "Konto Księgowe"
    QLineEdit *EdPkwiu;              // "PKWiU:"

protected:
    void FormCreate() override;

private:
    void buildFields(QWidget *parent);
    void fill(const InvoiceHeaderChoices &choices, const InvoiceHeader &proposed);
    void memUwagiChange();
    void btnOkClick();

    TFakturyObj &m_record;
};
