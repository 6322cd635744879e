#pragma once

#include "TableObject.h"

// Table MIEJSCA: places (loading and unloading addresses): town, postcode, address, country,
// remarks, name.
class TMiejscaObj : public TableObject<TMiejscaObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TMiejscaObj> &description();

    explicit TMiejscaObj(Connection &connection) : TableObject(connection) {}

    int ID_MIEJSCA = 0;
    QString MIASTO;
    QString KOD;
    QString ADRES;
    int ID_KRAJU = 0;
    QString UWAGI;
    QString NAZWA;
};
