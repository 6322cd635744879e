#pragma once

#include "TfrmRODefault.h"

class QComboBox;

// The start of invoicing from the register: whose orders to invoice, the
// client of the order the dispatcher stood on proposed, "wszyscy" for the
// orders of every client. "&Dalej" opens the invoicing of orders for that
// choice and ends when it closes.
class TfrmWyborKontrahenta : public TfrmRODefault
{
    Q_OBJECT

public:
    // clientKey 0: no order was selected.
    TfrmWyborKontrahenta(QWidget *owner, int clientKey, int orderKey);

    // The key of the chosen client, 0 for all.
    int client() const;

    QComboBox *cbKontrahent;   // "Kontrahent:"

protected:
    void FormCreate() override;

private:
    void btnDalejClick();

    int m_clientKey;
    int m_orderKey;
};
