#pragma once

#include "TableObject.h"

// View VMIEJSCA_ZALAD_ROZLAD: view of the loading and unloading places of an order with the
// place's and country's names.
class TVmiejsca_zalad_rozladObj : public TableObject<TVmiejsca_zalad_rozladObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TVmiejsca_zalad_rozladObj> &description();

    explicit TVmiejsca_zalad_rozladObj(Connection &connection) : TableObject(connection) {}

    int ID_MIEJSCA_ZALAD_ROZLAD = 0;
    int ID_MIEJSCA = 0;
    int ID_ZLECENIA = 0;
    QString MIEJSCA_NAZWA;
    QString MIEJSCA_MIASTO;
    QString MIEJSCA_KOD;
    QString MIEJSCA_ADRES;
    QString KRAJE_NAZWA;
    int ID_ZRP = 0;
};
