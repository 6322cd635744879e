#pragma once

#include "TableObject.h"

// Table MIARY: units of measure: name and abbreviation.
class TMiaryObj : public TableObject<TMiaryObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TMiaryObj> &description();

    explicit TMiaryObj(Connection &connection) : TableObject(connection) {}

    int ID_MIARY = 0;
    QString NAZWA;
    QString SKROT;
};
