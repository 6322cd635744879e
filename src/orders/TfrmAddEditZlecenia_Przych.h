#pragma once

#include "OrderRates.h"
#include "TZlecenia_przychObj.h"
#include "TfrmRODefault.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPlainTextEdit;
class QPushButton;
class QRadioButton;
class TDateEdit;
class TLimitedSpinEdit;
class TNumberEdit;
class TTaryfyprzewoznikaObj;

// The dialog in which one incoming order is entered or corrected: client,
// carrier, route, loading and unloading, the four priced quantities with
// their rates, the revenue (agreed or by tariff), the carrier cost (agreed
// or by the carrier's tariff), vehicle, driver, documents and a description.
//
// Created with the order's key and a mode: 0 adds a new order (the key is
// not used), 1 corrects the order with that key. Shown modally; OK (1) after
// the order was saved, cancel (2) with the database untouched.
class TfrmAddEditZlecenia_Przych : public TfrmRODefault
{
    Q_OBJECT

public:
    enum Mode { Add = 0, Edit = 1 };

    TfrmAddEditZlecenia_Przych(QWidget *owner, int orderKey, int mode);

    int orderKey() const { return m_order.ID_ZLECENIA_PRZYCH; }
    int mode() const { return m_mode; }
    // The order as loaded (edit) or as a new record (add); after a save, as
    // saved.
    const TZlecenia_przychObj &order() const { return m_order; }

    // The keys the picker fields keep beside their texts (0 for none).
    int tariffKey() const { return m_tariffKey; }
    int costTariffKey() const { return m_costTariffKey; }
    int driverKey() const { return m_driverKey; }
    // The contractor that stands for the company itself (IDWłaściciela).
    int ownerKey() const { return m_ownerKey; }

    // What lblStawkaRazem shows.
    double totalRate() const;
    OrderQuantities quantities() const;
    UnitRates rates() const;

    // What the pickers do with the user's choice, after the tariff register
    // closed with OK: the revenue tariff brings its four rates along, the
    // cost tariff only its key and name.
    void tariffChosen(const TTaryfyprzewoznikaObj &tariff);
    void costTariffChosen(const TTaryfyprzewoznikaObj &tariff);
    // The agreed amount from a price list (group 0: the main one).
    void priceListChosen(int group);

    QLabel *lblNumerKolejny;
    TLimitedSpinEdit *seNumerKolejny;
    QLabel *lblPrzeladunek;
    QLineEdit *edPrzeladunek;
    QLabel *lblKlient;
    QComboBox *cbKlient;
    QPushButton *btnKlientMore;
    QCheckBox *cbPrzewoznikObcy;
    QComboBox *cbPrzewoznik;
    QPushButton *BitBtn1;

    QLabel *lblMiastoOd;
    QComboBox *cbMiastoOd;
    QLabel *lblMiastoPrzez;
    QComboBox *cbMiastoPrzez;
    QLabel *lblMiastoDo;
    QComboBox *cbMiastoDo;
    QPushButton *btnMiastoOd;        // "..." buttons: the distance register
    QPushButton *btnMiastoPrzez;
    QPushButton *btnMiastoDo;

    QGroupBox *gbZaladunek;
    TDateEdit *deAwizo;
    QLineEdit *meAwizo;
    QGroupBox *gbRozladunek;
    TDateEdit *deRozladunek;
    QLineEdit *meRozladunek;

    QLabel *lblOdleglosc;
    TLimitedSpinEdit *seOdleglosc;
    QLabel *lblKMLadownych;
    TLimitedSpinEdit *seKMLadownych;
    TNumberEdit *edStawkaKMLadowny;
    QLabel *lblKMPustych;
    TNumberEdit *seKMPustych;
    TNumberEdit *edStawkaKMPusty;
    QLabel *lblIloscGodzin;
    TNumberEdit *seIloscGodzin;
    TNumberEdit *edStawkaIloscGodzin;
    QLabel *lblIloscPalet;
    TLimitedSpinEdit *seIloscPalet;
    TNumberEdit *edStawkaIloscPalet;

    QGroupBox *gbStawka;
    QRadioButton *rbStawkaUmowna;
    TNumberEdit *seKwota;
    QRadioButton *rbStawkaTaryfowa;
    QLineEdit *ceTaryfa;
    QAction *acTaryfa;               // the tariff field's button
    QPushButton *btnCennik;          // "Wylicz z cennika", pops up pmCennik
    QMenu *pmCennik;                 // price lists, the group key with each entry
    QGroupBox *gbKoszty;
    QRadioButton *rbKosztUmowna;
    TNumberEdit *seKosztKwota;
    QRadioButton *rgKosztTaryfa;
    QLineEdit *ceKosztTaryfa;
    QAction *acKosztTaryfa;

    QLabel *lblRabat;
    TNumberEdit *ceRabat;
    QLabel *lblStawkaRazemOpis;
    QLabel *lblStawkaRazem;
    QLabel *lblOplataSkarbowa;
    TNumberEdit *ceOplataSkarbowa;   // hidden

    QLabel *lblPojazd;
    QLineEdit *edPojazd;
    QAction *acPojazd;               // the vehicles' selection window
    QLabel *lblNaczepa;
    QLineEdit *edNaczepa;
    QAction *acNaczepa;              // the trailers' selection window
    QLabel *lblKierowca;
    QLineEdit *ceKierowca;
    QAction *acKierowca;             // the driver field's button

    QLabel *lblDokWZ;
    TLimitedSpinEdit *seDokWZ;
    QLabel *lblNrKarty;
    TLimitedSpinEdit *edNrKarty;
    QLabel *lblNrListu;
    TLimitedSpinEdit *edNrListu;
    QLabel *lblOpisDod;
    QPlainTextEdit *memOpisDod;
    QLabel *lblTekstStaly;
    QLineEdit *edTekstStaly;         // disabled

    QComboBox *cbWspolnik;           // hidden, FILTR1
    QCheckBox *chslubice;            // hidden, FILTR2

protected:
    void FormCreate() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildControls();
    void buildLayout();
    void connectControls();

    void fillLists();
    void fillContractors();
    void showOrder();
    void showNewOrder();
    void showTariffName(QLineEdit *field, int key);

    void recomputeTotal();
    void applyRevenueMode();
    void applyCostMode();
    void rbStawkaClick();
    void rbKosztClick();
    void carrierChosen();
    void ownCarrierClick(bool checked);
    // The contractors' selection window for a list; true when one was chosen.
    bool pickContractor(QComboBox *list);
    void btnKlientMoreClick();
    void BitBtn1Click();
    void acKierowcaExecute();
    // A vehicle brings its registration, its default driver (or none) and
    // its default trailer; the fields stay free text.
    void acPojazdExecute();
    void acNaczepaExecute();
    void limitDescription();

    // Pricing: tariffs, price lists, cities and the route's distance.
    void connectPricing();
    void fillPriceListMenu();
    void acTaryfaExecute();
    void acKosztTaryfaExecute();
    void clearTariff();
    void cityChosen();
    void btnMiastoClick();

    void btnOkClick();
    // The controls into the record; false (after the message) when a time
    // does not convert, and then nothing was changed.
    bool collectOrder();
    double carrierCost() const;
    void save();

    TZlecenia_przychObj m_order;
    int m_mode;
    int m_tariffKey = 0;
    int m_costTariffKey = 0;
    int m_driverKey = 0;
    int m_ownerKey = 0;
};
