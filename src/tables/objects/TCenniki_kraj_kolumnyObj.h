#pragma once

#include "TableObject.h"

// Table CENNIKI_KRAJ_KOLUMNY: columns of the domestic price list: a range from-to.
class TCenniki_kraj_kolumnyObj : public TableObject<TCenniki_kraj_kolumnyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::Guarded;
    static const TableDescription<TCenniki_kraj_kolumnyObj> &description();

    explicit TCenniki_kraj_kolumnyObj(Connection &connection) : TableObject(connection) {}

    int ID_CENNIKI_KRAJ_KOLUMNY = 0;
    int ZAKRES_KOD = 0;
    int ZAKRES_KDO = 0;
};
