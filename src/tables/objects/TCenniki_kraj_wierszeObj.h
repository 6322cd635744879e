#pragma once

#include "TableObject.h"

// Table CENNIKI_KRAJ_WIERSZE: rows of the domestic price list: a range from-to.
class TCenniki_kraj_wierszeObj : public TableObject<TCenniki_kraj_wierszeObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::Guarded;
    static const TableDescription<TCenniki_kraj_wierszeObj> &description();

    explicit TCenniki_kraj_wierszeObj(Connection &connection) : TableObject(connection) {}

    int ID_CENNIKI_KRAJ_WIERSZE = 0;
    int ZAKRES_WOD = 0;
    int ZAKRES_WDO = 0;
};
