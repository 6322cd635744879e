#pragma once

#include "CarrierInvoice.h"
#include "TfrmRODefault.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class TDateEdit;
class TLimitedSpinEdit;
class TNumberEdit;

// The carrier's invoice of one incoming order: number, issue and receipt
// dates, amount, payment days, payment date, amount paid and the paid mark.
// Opened filled with what the order holds; OK stores the invoice in the
// order and closes with 1. A value that cannot be stored keeps the dialog
// open with a message, everything typed still in place.
class TfrmFaktPrzew : public TfrmRODefault
{
    Q_OBJECT

public:
    TfrmFaktPrzew(QWidget *owner, int orderKey, const CarrierInvoice &invoice);

    int orderKey() const { return m_orderKey; }
    // What the fields say now.
    CarrierInvoice invoice() const;

    QLineEdit *EdNumerFakt;         // "Numer Faktury:"
    TDateEdit *DEwystawienia;       // "Data wystawienia :"
    TDateEdit *DEOtrzymania;        // "Data otrzymania  :"
    TLimitedSpinEdit *RSEDni;       // "Ilość dni  płatności :"
    TNumberEdit *CEKWOTA;           // "Kwota netto:"
    QLabel *lblBrutto;              // "Brutto:", then the amount with 23 % VAT
    TDateEdit *DEplatnosc;          // "Data  zapłaty:"
    TNumberEdit *CEzaplacono;       // "Zapłacono:"
    QCheckBox *CBZaplacono;         // "Zapłacona "

protected:
    void FormCreate() override;

private:
    void fill(const CarrierInvoice &invoice);
    void DEwystawieniaChange();
    void CEKWOTAExit();
    void btnOkClick();
    // A field whose text is not a value at all, with the message saying so.
    bool unreadableField();
    QWidget *field(CarrierInvoice::Field which) const;

    int m_orderKey;
};
