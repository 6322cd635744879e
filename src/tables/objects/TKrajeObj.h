#pragma once

#include "TableObject.h"

// Table KRAJE: countries: symbol, name, a web text, the mask of the country's postcodes.
class TKrajeObj : public TableObject<TKrajeObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TKrajeObj> &description();

    explicit TKrajeObj(Connection &connection) : TableObject(connection) {}

    int ID_KRAJU = 0;
    QString SYMBOL;
    QString NAZWA;
    QString HTTPSTRING;
    QString KOD_POCZTOWY_MASKA;
};
