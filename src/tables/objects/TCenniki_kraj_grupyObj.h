#pragma once

#include "TableObject.h"

// Table CENNIKI_KRAJ_GRUPY: groups of the domestic price list: name, lock flag.
class TCenniki_kraj_grupyObj : public TableObject<TCenniki_kraj_grupyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::Guarded;
    static const TableDescription<TCenniki_kraj_grupyObj> &description();

    explicit TCenniki_kraj_grupyObj(Connection &connection) : TableObject(connection) {}

    int ID_CENNIKI_KRAJ_GRUPY = 0;
    QString NAZWA;
    int BLOKADA = 0;
};
