#pragma once

#include "TableObject.h"

// Table TARYFYPRZEWOZNIKA: carrier tariffs: the amount in `KWOTA_ZA_KM`, which the forms show and
// use as the amount per tonne, per laden kilometre, per hour, per pallet; rate name and
// number; own-tariff flag; storage; other.
class TTaryfyprzewoznikaObj : public TableObject<TTaryfyprzewoznikaObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TTaryfyprzewoznikaObj> &description();

    explicit TTaryfyprzewoznikaObj(Connection &connection) : TableObject(connection) {}

    int ID_TARYFYPRZEWOZNIKA = 0;
    double KWOTA_ZA_KM = 0.0;
    double KWOTA_ZA_KM_LAD = 0.0;
    double KWOTA_ZA_GODZ = 0.0;
    double KWOTA_ZA_PALETE = 0.0;
    QString NAZWA_STAWKI;
    int NUMER_STAWKI = 0;
    int TARYFAWLASNA = 0;
    double MAGAZYNOWANIE = 0.0;
    double INNE = 0.0;
};
