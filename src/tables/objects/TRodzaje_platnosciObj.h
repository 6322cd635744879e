#pragma once

#include "TableObject.h"

// Table RODZAJE_PLATNOSCI: payment methods.
class TRodzaje_platnosciObj : public TableObject<TRodzaje_platnosciObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TRodzaje_platnosciObj> &description();

    explicit TRodzaje_platnosciObj(Connection &connection) : TableObject(connection) {}

    int ID_RODZ_PLATNOSCI = 0;
    QString OPIS;
};
