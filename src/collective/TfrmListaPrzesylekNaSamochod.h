#pragma once

#include "TfrmRODefault.h"

class QAction;
class QLineEdit;
class TframeListView;

// The consignments loaded on the vehicle of one collective order, and the
// pallets planned on them against what the vehicle takes. Orders are put
// on the vehicle through TfrmWybierzPrzesylki and taken off here.
class TfrmListaPrzesylekNaSamochod : public TfrmRODefault
{
    Q_OBJECT

public:
    TfrmListaPrzesylekNaSamochod(QWidget *owner, int collectiveKey);

    // Whether "Załadowano" is shown in red: more pallets planned than the
    // vehicle takes.
    bool overloadShown() const;

    QLineEdit *edPojazd;       // "Pojazd"
    QLineEdit *edKierowca;     // "Kierowca"
    QLineEdit *edLadownosc;    // "Ładowność palet"
    QLineEdit *edZaladowano;   // "Załadowano": planned pallets of the listed orders
    TframeListView *frameListView1;
    QAction *acDodaj;          // "&Dodaj"
    QAction *acDelete;         // "&Usuń"

protected:
    void FormCreate() override;
    void LoadLVData() override;

private:
    QWidget *buildVehicle(QWidget *parent);
    void acDodajExecute();
    void acDeleteExecute();
    void showLoad(int planned);

    int m_collectiveKey;
    int m_capacity = 0;
    bool m_overload = false;
};
