#pragma once

#include "TfrmRODefault.h"

class TBitBtn;
class TDateEdit;
class TframeListView;

// The orders loaded within a range that no vehicle carries yet, with check
// boxes; OK puts the checked ones on the collective order's vehicle.
class TfrmWybierzPrzesylki : public TfrmRODefault
{
    Q_OBJECT

public:
    // How far either side of today the range starts.
    static constexpr int RangeDays = 7;

    TfrmWybierzPrzesylki(QWidget *owner, int collectiveKey);

    TDateEdit *deOd;                  // "Wyświetl wysyłki w zakresie od:"
    TDateEdit *deDo;                  // "dp:"
    TBitBtn *btnOdswiez;              // "Odśwież"
    TframeListView *frameListView1;   // with check boxes

protected:
    void FormCreate() override;
    void LoadLVData() override;

private:
    QWidget *buildRange(QWidget *parent);
    void btnOkClick();

    int m_collectiveKey;
};
