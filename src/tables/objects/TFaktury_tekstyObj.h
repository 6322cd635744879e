#pragma once

#include "TableObject.h"

// Table FAKTURY_TEKSTY: standard texts for invoices.
class TFaktury_tekstyObj : public TableObject<TFaktury_tekstyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TFaktury_tekstyObj> &description();

    explicit TFaktury_tekstyObj(Connection &connection) : TableObject(connection) {}

    int ID_TEKSTU = 0;
    QString NAZWA;
};
