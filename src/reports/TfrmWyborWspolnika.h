#pragma once

#include "PartnersSelection.h"
#include "TfrmRODefault.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QRadioButton;
class TDateEdit;
class TRadioGroup;

// Asks what the partners report lists: the partner ("Dla spedytora:"),
// whether to leave the partner out of the title ("Pokaż wszystkie"), the
// period of invoice dates (a month back from today at first), domestic or
// foreign orders and who carried them. "Dalej >>>" closes with 1.
class TfrmWyborWspolnika : public TfrmRODefault
{
    Q_OBJECT

public:
    explicit TfrmWyborWspolnika(QWidget *owner = nullptr);

    // The choice as the fields stand.
    PartnersSelection selection() const;

    QLabel *lblWspolnik;       // "Dla spedytora:"
    QComboBox *cbWspolnik;     // partners sorted by text, key as item data
    QCheckBox *cbAll;          // "Pokaż wszystkie"
    QLabel *lblDaty;           // "Daty zafakturowania:"
    QLabel *lblOd;             // "Od:"
    TDateEdit *deOd;
    QLabel *lblDo;             // "do:"
    TDateEdit *deDo;
    QRadioButton *rbAll;       // "Całość"
    QRadioButton *rbKraj;      // "Kraj"
    QRadioButton *rbZagr;      // "Zagranica"
    TRadioGroup *rgwar;        // "Zlecenia": "Wszystkie ", "Haulix", "Spedycja"

protected:
    void FormCreate() override;

private:
    void cbAllClick();
    void fillPartners();
};
