#pragma once

#include "TfrmStatementChoice.h"

// The dispatchers' statements: one user or all, and the period. The kind
// gives the dialog its title and the statement it previews.
class TfrmWybierzDatyAndUsera1 : public TfrmStatementChoice
{
    Q_OBJECT

public:
    enum Kind { Rates, Invoices, CarrierInvoices };

    // userKey: the user to offer first (all users are chosen at first).
    TfrmWybierzDatyAndUsera1(QWidget *owner, Kind kind, int userKey);

    Kind kind() const { return m_kind; }
    static QString title(Kind kind);

protected:
    std::vector<StatementParties::Party> parties(Connection &connection) override;
    void preview(Connection &connection) override;

private:
    Kind m_kind;
};
