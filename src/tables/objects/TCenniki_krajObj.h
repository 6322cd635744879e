#pragma once

#include "TableObject.h"

// Table CENNIKI_KRAJ: cells of the domestic price list: group, amount, kilograms, kilometres.
class TCenniki_krajObj : public TableObject<TCenniki_krajObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TCenniki_krajObj> &description();

    explicit TCenniki_krajObj(Connection &connection) : TableObject(connection) {}

    int ID_CENNIKI_KRAJ = 0;
    int GRUPA = 0;
    double KWOTA = 0.0;
    int KILOGRAMY = 0;
    int KILOMETRY = 0;
};
