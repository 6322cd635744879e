#pragma once

class QString;
class QWidget;
class TBitBtn;
class TDateEdit;

// The row above a list that is read for a range of dates: the first date
// with its caption, the second with its own, and "Odśwież" (deOd, deDo,
// btnOdswiez). Both dates are required.
struct DateRangeBar
{
    TDateEdit *from;
    TDateEdit *to;
    TBitBtn *refresh;

    // Lays the row out as the panel's layout.
    static DateRangeBar build(QWidget *panel, const QString &fromCaption,
                              const QString &toCaption);
};
