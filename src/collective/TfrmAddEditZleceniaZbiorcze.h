#pragma once

#include "CollectiveOrder.h"
#include "TfrmRODefault.h"

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;
class QTabWidget;
class QToolButton;
class QWidget;
class TDateEdit;
class TLimitedSpinEdit;
class TNumberEdit;

// The head of one collective order: number and dates, and who carries it,
// the company with its own vehicle, driver and rate ("Wykonawca własny")
// or an outside carrier with its vehicle, driver, payment term and invoice
// ("Wykonawca obcy"). The tab shown when saving decides which.
class TfrmAddEditZleceniaZbiorcze : public TfrmRODefault
{
    Q_OBJECT

public:
    enum Mode { Add = 0, Edit = 1 };

    // key: the collective order corrected in Edit mode (0 when adding).
    TfrmAddEditZleceniaZbiorcze(QWidget *owner, int key, Mode mode);

    // The collective order's key; after an added one is saved, its new key.
    int key() const { return m_key; }
    // What the controls hold, as it would be saved.
    CollectiveOrder entered() const;
    bool textShown() const;

    TDateEdit *deZlecenia;               // "Data zlecenia"
    TLimitedSpinEdit *seNumerKolejny;    // "Nr zlecenia"
    TDateEdit *deDataZaladunku;          // "Data załadunku"
    QLineEdit *meGodzinaZaladunku;       // "Godzina załadunku", not stored
    TDateEdit *deDataRozladunku;         // "Data rozładunku"
    QLineEdit *meGodzinaRozladunku;      // "Godzina rozładunku", not stored
    TLimitedSpinEdit *seNumerJazdy;      // "Numer jazdy"
    TLimitedSpinEdit *seTekstStaly;      // "Numer tekstu stałego:"
    QToolButton *imgTekstJest;           // "Wyświetl stały tekst..."
    QLabel *imgTekstBrak;                // "Brak tekstu stałego o tym numerze...."
    QPlainTextEdit *memoDodatkowyOpis;   // "Dodatkowy opis ładunku", not stored
    TLimitedSpinEdit *seKmLadowne;       // shown only, like the three below
    TLimitedSpinEdit *seKmPuste;
    TLimitedSpinEdit *seGodzinyZaladunku;
    TLimitedSpinEdit *seGodzinyRozladunku;

    QTabWidget *pcWykonawca;
    QWidget *tsWlasny;                   // "Wykonawca własny"
    QLineEdit *cePojazd;                 // "Nr rej. pojazdu"
    QAction *acPojazd;
    QLineEdit *ceKierowca;               // "Kierowca"
    QAction *acKierowca;
    TNumberEdit *seStawkaWlasna;         // "Stawka własna"
    QLineEdit *ceTaryfaWlasna;           // "Stawka taryfowa"
    QAction *acTaryfaWlasna;

    QWidget *tsObcy;                     // "Wykonawca obcy"
    QComboBox *cbWykonawca;              // "Wykonawca"
    QPushButton *btnMore;                // "Więcej..."
    QLineEdit *cePojazdObcy;             // "Nr rej. pojazdu"
    QAction *acPojazdObcy;
    QLineEdit *ceKierowcaObcy;           // "Kierowca"
    QAction *acKierowcaObcy;
    TLimitedSpinEdit *ceTermin;          // "Termin płatności" ... "dni"
    QLineEdit *edFakturaObca;            // "Numer faktury od przewoźnika"
    QComboBox *cbVAT;                    // "VAT"
    TDateEdit *deWystawiono;             // "Data wystawienia"
    TNumberEdit *seKwota;                // "Kwota netto"

protected:
    void FormCreate() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    // The crew fields of one tab and the keys they stand for.
    struct Crew
    {
        QLineEdit *vehicle = nullptr;
        QLineEdit *driver = nullptr;
        int vehicleKey = 0;
        int driverKey = 0;
    };

    void buildControls();
    QWidget *buildHead(QWidget *parent);
    QWidget *buildOwnTab();
    QWidget *buildOutsideTab();
    void connectControls();
    void fillChoices(int currentCarrier);
    void show(const CollectiveOrder &order);
    void checkFixedText();
    void showFixedText();
    void pickVehicle(Crew &crew);
    void pickDriver(Crew &crew);
    void pickTariff();
    void pickCarrier();
    void btnOkClick();

    int m_key;
    Mode m_mode;
    // Where the fixed texts lie, read once: the check runs at every digit.
    QString m_appPath;
    int m_ownerKey = 0;
    int m_ownTariff = 0;
    Crew m_own;
    Crew m_outside;
};
