#pragma once

#include "TfrmRODefault.h"

class QLabel;
class TLimitedFloatEdit;

// The amount of one price-list cell. 0 or less clears the cell.
class TfrmAddEditCenniki : public TfrmRODefault
{
    Q_OBJECT

public:
    // kilograms, kilometres: the header texts of the cell's column and row.
    TfrmAddEditCenniki(QWidget *owner, const QString &kilograms, const QString &kilometres,
                       double amount);

    double amount() const;

    QLabel *lblKg;
    QLabel *lblKm;
    TLimitedFloatEdit *edStawka;
};
