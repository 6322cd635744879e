#pragma once

#include "TableObject.h"

// Table NACZEPY: trailers: kind, registration and documents, year, make, type, purpose, chassis
// number, weight, length, width, height, load capacity, axles, tyres, generating set and its tank,
// seven compartments, couplings, default containers, heating.
class TNaczepyObj : public TableObject<TNaczepyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TNaczepyObj> &description();

    explicit TNaczepyObj(Connection &connection) : TableObject(connection) {}

    int ID_NACZEPY = 0;
    int ID_GATUNKU_NACZ = 0;
    QString NR_REJ;
    QString DOWOD_REJ;
    int ROK_PROD = 0;
    QString NR_EWID;
    int ID_MARKA = 0;
    QString TYP;
    int ID_RODZAJ = 0;
    QString PRZEZNACZENIE;
    QString NR_PODWOZIA;
    int MASA = 0;
    double DLUGOSC = 0.0;
    double SZEROKOSC = 0.0;
    double WYSOKOSC = 0.0;
    int LADOWNOSC = 0;
    int IL_OSI = 0;
    QString OPONY;
    int AGREGAT = 0;
    int AGREGAT_ZBIORN = 0;
    int KOMORA1 = 0;
    int KOMORA2 = 0;
    int KOMORA3 = 0;
    int KOMORA4 = 0;
    int KOMORA5 = 0;
    int KOMORA6 = 0;
    int KOMORA7 = 0;
    QString OPIS_ZACZEPOW;
    int DEF_KONTENER = 0;
    int DEF_KONTENER1 = 0;
    QString OPIS;
    int OGRZEWANIE = 0;
};
