#pragma once

#include "TableObject.h"

// Table KONTA_BANKOWE: bank accounts: bank, account number, description, default flag, three
// further account numbers.
class TKonta_bankoweObj : public TableObject<TKonta_bankoweObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TKonta_bankoweObj> &description();

    explicit TKonta_bankoweObj(Connection &connection) : TableObject(connection) {}

    int ID_KONTA = 0;
    QString BANK;
    QString RACHUNEK;
    QString OPIS;
    int DEFAULT_KONTO = 0;
    QString RACHUNEK1;
    QString RACHUNEK2;
    QString RACHUNEK3;
};
