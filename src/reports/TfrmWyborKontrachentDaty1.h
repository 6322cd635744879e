#pragma once

#include "TfrmStatementChoice.h"

// Cost per carrier: the carrier of the register's selected order first,
// or all carriers.
class TfrmWyborKontrachentDaty1 : public TfrmStatementChoice
{
    Q_OBJECT

public:
    TfrmWyborKontrachentDaty1(QWidget *owner, int carrierKey);

protected:
    std::vector<StatementParties::Party> parties(Connection &connection) override;
    void preview(Connection &connection) override;
};
