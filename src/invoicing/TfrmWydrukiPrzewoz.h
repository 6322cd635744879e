#pragma once

#include "CarrierInvoiceList.h"
#include "TfrmRODefault.h"

class QCheckBox;
class QComboBox;
class QLabel;
class TDateEdit;

// Asks which carriers' invoices to list: one carrier or all ("Wszyscy"),
// and for the paid and issued lists the period, the current month at
// first. OK previews the list and closes with 1; a period that ends before
// it starts, or no carrier chosen, keeps the dialog open with a message.
class TfrmWydrukiPrzewoz : public TfrmRODefault
{
    Q_OBJECT

public:
    // carrierKey: the carrier to offer first (0 for none).
    TfrmWydrukiPrzewoz(QWidget *owner, int carrierKey, CarrierInvoiceList::Mode mode);

    CarrierInvoiceList::Mode mode() const { return m_mode; }
    // The list as the fields choose it.
    CarrierInvoiceList list() const;

    QLabel *Label1;                // "Wybierz przewoźnika"
    QComboBox *CBKontrahenci;      // the carriers of the orders, key as item data
    QCheckBox *cbWszyscy;          // "Wszyscy"
    QLabel *lblOd;                 // "Data od :"
    TDateEdit *deOd;
    QLabel *lblDo;                 // "Data do :"
    TDateEdit *deDo;

protected:
    void FormCreate() override;

private:
    void cbWszyscyClick();
    void btnOkClick();
    // Whether the fields choose a list; says what is missing when not.
    bool complete();

    int m_carrierKey;
    CarrierInvoiceList::Mode m_mode;
};
