#pragma once

#include "TfrmRODefault.h"

class QLabel;
class TLimitedSpinEdit;

// Asks for the upper bound of a kilometre or kilogram range. OK closes
// only when the bound is not taken by another range of the axis.
class TfrmAddEditCennikWierszeKolumny : public TfrmRODefault
{
    Q_OBJECT

public:
    // duplicateTest: the statement that counts ranges with the bound
    // (parameter :wartosc); unit: " km" or " kg".
    TfrmAddEditCennikWierszeKolumny(QWidget *owner, int value, const QString &duplicateTest,
                                    const QString &unit);

    int value() const;

    QLabel *lblWartosc;
    TLimitedSpinEdit *edWartosc;

private:
    void btnOkClick();

    QString m_duplicateTest;
};
