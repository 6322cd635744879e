#pragma once

#include "TfrmRODefault.h"

class QAction;
class QBoxLayout;
class QButtonGroup;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class TBitBtn;
class TDateEdit;
class TframeListView;

// Invoicing of orders: the orders loaded within the range that have no
// invoice yet, of one client or of all, with check boxes. "&Zafakturuj"
// puts the checked orders on one invoice through the header dialog
// TfrmFakturowanie, all or nothing; the last invoice made here can be
// printed, previewed, exported as an e-invoice and removed again.
class TfrmWybierzZlecenia : public TfrmRODefault
{
    Q_OBJECT

public:
    // clientKey 0 or less lists the orders of every client; orderKey is
    // the order the dispatcher stood on, selected when listed.
    TfrmWybierzZlecenia(QWidget *owner, int clientKey, int orderKey);

    // The keys of the checked orders, in list order.
    std::vector<int> checkedOrders() const;
    // The key shown in edfak, 0 when none.
    int lastInvoice() const;

    TDateEdit *deOd;                  // "od:"
    TDateEdit *deDo;                  // "do:"
    TBitBtn *btnOdswiez;              // "Odśwież"
    TframeListView *frameListView1;   // the orders, with check boxes
    TBitBtn *btnZaznaczWszystko;      // "Zaznacz wszystko"
    TBitBtn *btnOdznaczWszystko;      // "Odznacz wszystko"
    TBitBtn *btnOdwrocZaznaczenie;    // "Odwróć zaznaczenie"
    QGroupBox *gbMiesiac;             // "Miesiąc Rozliczeniowy"
    QRadioButton *RbWystawienie;      // "Data Wystawienia", the default
    QRadioButton *RbSp;               // "Data Sprzedazy"
    QCheckBox *cbZalacznik;           // "Załacznik ", checked
    QGroupBox *gbKopie;               // "Orginał + kopia"
    QCheckBox *cbKopie0;
    QCheckBox *cbKopie1;              // the default
    QCheckBox *cbKopie2;
    QCheckBox *cbKopie3;
    QGroupBox *gbOstatnia;            // "Ostatnia  Faktura "
    QLabel *Label6;                   // its full number
    QLineEdit *edfak;                 // its key
    TBitBtn *btnDrukuj;               // "&Drukuj": the invoice, then its attachment
    TBitBtn *btnPodglad;              // "&Podglad": both in the preview
    TBitBtn *btnEksportKsef;          // "Eksport KSeF...": the e-invoice file
    TBitBtn *btnUsun;                 // "&Usuń": removes the last invoice
    QAction *acPopraw;                // "&Popraw": the selected order's collective order
    QAction *acLadunki;               // "Ładunki": the consignments on its vehicle
    TBitBtn *btnLadunki;

protected:
    void FormCreate() override;
    void LoadLVData() override;

private:
    void buildTop(QWidget *parent);
    void buildChecks(QWidget *parent);
    QWidget *buildSide(QWidget *parent);
    void btnZafakturujClick();
    void btnDrukujClick(bool preview);
    void btnEksportKsefClick();
    void btnUsunClick();
    void showLastInvoice(int key, const QString &text);
    void addCollectiveOrderActions(QBoxLayout *row);
    // The collective order of the selected order; 0, after saying so, when
    // it has none, and when no order is selected.
    int selectedCollectiveOrder();
    void acPoprawExecute();
    void acLadunkiExecute();

    int m_clientKey;
    int m_orderKey;
    QButtonGroup *m_copies;
};
