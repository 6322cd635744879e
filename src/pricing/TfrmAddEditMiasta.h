#pragma once

#include "TfrmRODefault.h"

class QLineEdit;
class TLimitedSpinEdit;

// Corrects the distance of one stored route; its cities stay as they are.
class TfrmAddEditMiasta : public TfrmRODefault
{
    Q_OBJECT

public:
    TfrmAddEditMiasta(QWidget *owner, int routeKey);

    int routeKey() const { return m_routeKey; }

    QLineEdit *edMiastoOd;
    QLineEdit *edMiastoDo;
    TLimitedSpinEdit *edOdleglosc;

protected:
    void FormShow() override;

private:
    void btnOkClick();

    int m_routeKey;
    bool m_loaded = false;
};
