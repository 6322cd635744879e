#pragma once

#include "TTowaryObj.h"
#include "TfrmRODefault.h"

class QComboBox;
class QLabel;
class QLineEdit;
class TNumberEdit;

// One goods row of an order. Created with the row (for a new one, a record
// whose ID_ZLECENIA is the order) and a mode, 0 to add or 1 to correct;
// OK (1) inserts or updates the row, cancel (2) writes nothing. Only the
// name, ADR marking, description, both quantities and the unit are edited;
// the record's other columns go back as they came.
class TfrmAddEditTowaryNaZleceniu : public TfrmRODefault
{
    Q_OBJECT

public:
    enum Mode { Add = 0, Edit = 1 };
    static constexpr int TextLength = 35;

    TfrmAddEditTowaryNaZleceniu(QWidget *owner, const TTowaryObj &goods, int mode);

    const TTowaryObj &goods() const { return m_goods; }
    int mode() const { return m_mode; }

    QLabel *lblNazwa;
    QComboBox *cbNazwa;          // typed or one of the names of earlier goods
    QLabel *lblADR;
    QLineEdit *edADR;
    QLabel *lblOpis;
    QLineEdit *edDodatkowyOpis;
    QLabel *lblIloscDekl;
    TNumberEdit *edIloscDekl;
    QLabel *lblIloscRzecz;
    TNumberEdit *edIloscRzecz;
    QLabel *lblJM;
    QComboBox *cbJM;             // units of MIARY, the unit's key with each item

protected:
    void FormCreate() override;
    void FormShow() override;

private:
    void btnOkClick();

    TTowaryObj m_goods;
    int m_mode;
};
