#pragma once

#include "TfrmRODefault.h"

class QComboBox;
class QLabel;
class TBitBtn;
class TRadioGroup;

// What to do with the selected incoming order and road cards: a new card
// for it, or the order put on an existing card chosen from the list of all
// cards.
class TfrmKartaDrogowa : public TfrmRODefault
{
    Q_OBJECT

public:
    // The answers of choice().
    static constexpr int Cancelled = -2;
    static constexpr int NewCard = -1;

    explicit TfrmKartaDrogowa(QWidget *owner = nullptr);

    // Shows the dialog modally and returns its choice.
    static int choose(QWidget *owner);

    // Cancelled, NewCard (OK with item 0) or the key of the card chosen
    // with item 1; Cancelled also when item 1 offers no card.
    int choice() const;

    TRadioGroup *rbKarta;   // "Operacje na karcie drogowej"
    QLabel *lbKarta;        // "Nr karty", shown with item 1 only
    QComboBox *cbKarta;     // the cards, sorted as text, key as item data
    TBitBtn *btnWykonaj;    // "&Wykonaj": OK
    TBitBtn *btnAnuluj;     // "&Anuluj": cancel

protected:
    void FormCreate() override;
    void FormShow() override;

private:
    // Whether the existing card item is the one chosen now.
    void rbKartaClick(bool existingCard);

    bool m_loaded = false;
};
