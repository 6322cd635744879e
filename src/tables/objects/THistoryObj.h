#pragma once

#include "TableObject.h"

// Table HISTORY: audit history: user, time, computer name, computer user, operation code, group,
// parameters of the operation.
class THistoryObj : public TableObject<THistoryObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::Unguarded;
    static const TableDescription<THistoryObj> &description();

    explicit THistoryObj(Connection &connection) : TableObject(connection) {}

    int ID_HISTORY = 0;
    int USERID = 0;
    DateTime CZAS;
    QString COMPNAME;
    QString COMPUSER;
    int OPERACJA = 0;
    int GRUPA = 0;
    QString HISTORY_PARAMS;
};
