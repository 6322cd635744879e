#pragma once

#include "TableObject.h"

// Table SYMBOLE_WALUT: currencies: country, symbol, name, default unit quantity (the number of
// units a rate is quoted for), a web text (`HTTPSTRING`).
class TSymbole_walutObj : public TableObject<TSymbole_walutObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TSymbole_walutObj> &description();

    explicit TSymbole_walutObj(Connection &connection) : TableObject(connection) {}

    int ID_WALUTY = 0;
    int ID_KRAJU = 0;
    QString SYMBOL;
    QString NAZWA;
    int DEF_ILOSC = 0;
    QString HTTPSTRING;
};
