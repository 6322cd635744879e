#pragma once

#include "TfrmRODefault.h"

class QCheckBox;
class QLabel;
class QLineEdit;

// The name and the blocked flag of a price-list group.
class TfrmAddEditGrupy : public TfrmRODefault
{
    Q_OBJECT

public:
    TfrmAddEditGrupy(QWidget *owner, const QString &name = {}, bool blocked = false);

    QString name() const;
    bool blocked() const;

    QLabel *lblNazwa;
    QLineEdit *edNazwa;
    QCheckBox *cbBlokada;
};
