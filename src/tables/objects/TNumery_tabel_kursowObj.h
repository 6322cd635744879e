#pragma once

#include "TableObject.h"

// Table NUMERY_TABEL_KURSOW: numbered exchange-rate tables: table number and the date it is dated.
class TNumery_tabel_kursowObj : public TableObject<TNumery_tabel_kursowObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TNumery_tabel_kursowObj> &description();

    explicit TNumery_tabel_kursowObj(Connection &connection) : TableObject(connection) {}

    int ID_NUM_TAB = 0;
    QString NUMER;
    DateTime Z_DNIA;
};
