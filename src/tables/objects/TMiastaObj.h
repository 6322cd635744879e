#pragma once

#include "TableObject.h"

// Table MIASTA: cities: name, postcode, province, country.
class TMiastaObj : public TableObject<TMiastaObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TMiastaObj> &description();

    explicit TMiastaObj(Connection &connection) : TableObject(connection) {}

    int ID_MIASTA = 0;
    QString NAZWA;
    QString KOD;
    int IDWOJEWODZTWA = 0;
    int IDKRAJU = 0;
};
