#pragma once

#include "TUsersObj.h"
#include "TZlecenia_przychObj.h"
#include "TfrmRODefault.h"

#include <optional>
#include <vector>

class QComboBox;
class QLabel;

// Changes which user issued an incoming order (IDUSER). Meant for rare
// corrections only, as its header says.
class TfrmAdvancedEdit : public TfrmRODefault
{
    Q_OBJECT

public:
    TfrmAdvancedEdit(QWidget *owner, int orderKey);

    int orderKey() const { return m_orderKey; }
    // The order as read by key (key 0 when it was not found); empty until
    // the form is finished or when there is no session database.
    const std::optional<TZlecenia_przychObj> &order() const { return m_order; }

    QLabel *lblWypisal;
    QComboBox *cbWypisal;   // every user, "first name surname", user key as item data
    QLabel *lblKategoria;   // kept hidden

protected:
    void FormCreate() override;
    void FormShow() override;

private:
    void btnOkClick();

    int m_orderKey;
    std::optional<TZlecenia_przychObj> m_order;
};
