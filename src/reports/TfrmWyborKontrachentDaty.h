#pragma once

#include "TfrmStatementChoice.h"

// Revenue and profit per client: the client of the register's selected
// order first, or all clients.
class TfrmWyborKontrachentDaty : public TfrmStatementChoice
{
    Q_OBJECT

public:
    TfrmWyborKontrachentDaty(QWidget *owner, int clientKey);

protected:
    std::vector<StatementParties::Party> parties(Connection &connection) override;
    void preview(Connection &connection) override;
};
