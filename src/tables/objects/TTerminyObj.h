#pragma once

#include "TableObject.h"

// Table TERMINY: reminders of the scheduler: day, time of day ("HH:mm", empty
// for the whole day), text, the user they belong to, done flag.
class TTerminyObj : public TableObject<TTerminyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TTerminyObj> &description();

    explicit TTerminyObj(Connection &connection) : TableObject(connection) {}

    int ID_TERMINU = 0;
    DateTime DATA;
    QString GODZINA;
    QString TRESC;
    int ID_USER = 0;
    int WYKONANE = 0;
};
