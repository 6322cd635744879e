#pragma once

#include "TableObject.h"

// Table STAWKI_VAT: VAT rates: description and percentage.
class TStawki_vatObj : public TableObject<TStawki_vatObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TStawki_vatObj> &description();

    explicit TStawki_vatObj(Connection &connection) : TableObject(connection) {}

    int ID_STAWKI = 0;
    QString OPIS;
    double PROCENT = 0.0;
};
