#pragma once

#include "TfrmRODefault.h"

#include <QDate>

class QCheckBox;
class QLabel;
class TDateEdit;

// Asks for the period of a statement of invoices and how to print it:
// "&Wykonawca własny" chooses the orders the company carried itself,
// "&Podgląd wydruku" a preview instead of the printer. Starts on the
// current month with the preview ticked. OK closes with 1 only when both
// dates are given and the period does not end before it starts; otherwise
// a message says what to mend and the dialog stays open.
class TfrmWybierzDatyAndKontrahenta : public TfrmRODefault
{
    Q_OBJECT

public:
    explicit TfrmWybierzDatyAndKontrahenta(QWidget *owner = nullptr);

    QDate from() const;
    QDate to() const;
    bool ownExecutor() const;
    bool previewFirst() const;

    QLabel *lblOd;             // "Od dnia:"
    TDateEdit *deOd;
    QLabel *lblDo;             // "do dnia:"
    TDateEdit *deDo;
    QCheckBox *cbWlasny;       // "&Wykonawca własny"
    QCheckBox *cbPodglad;      // "&Podgląd wydruku"

protected:
    void FormCreate() override;

private:
    void btnOkClick();
    bool complete();
};
