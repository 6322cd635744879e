#pragma once

#include "TableObject.h"

// Table POJAZDY: vehicles: kind, registration and documents, make, type, purpose,
// chassis/engine/body numbers, weights, colour, seats, engine data, year, heating, tyres, default
// trailer/driver/co-driver/executor, fuel kind, fuel norms and counters for the vehicle, its
// generating sets and heating.
class TPojazdyObj : public TableObject<TPojazdyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TPojazdyObj> &description();

    explicit TPojazdyObj(Connection &connection) : TableObject(connection) {}

    int ID_POJAZDU = 0;
    int ID_GATUNKU = 0;
    QString NR_REJ;
    QString DOWOD_REJ;
    QString NR_EWID;
    int ID_MARKA = 0;
    QString TYP;
    int ID_RODZAJ = 0;
    QString PRZEZNACZENIE;
    QString NR_PODW;
    QString NR_SILNIKA;
    QString NR_NADWOZIA;
    int MASA_WL = 0;
    int LADOWNOSC = 0;
    QString BARWA;
    int IL_MIEJSC = 0;
    int POJ_SILN = 0;
    int MOC_SILN = 0;
    int ROK_PROD = 0;
    int OGRZEWANIE = 0;
    QString OPONY_PRZOD;
    QString OPONY_TYL;
    int DEF_NACZEPA = 0;
    int DEF_KIEROWCA = 0;
    int DEF_ZMIENNIK = 0;
    QString RODZAJ_PALIWA;
    QString OPIS;
    int DEF_WYKONAWCA = 0;
    double NORMA_PALIWA = 0.0;
    double NORMA_AGREGATU = 0.0;
    double NORMA_OGRZEWANIA = 0.0;
    int PRZEJECHANE = 0;
    double STAN_PALIWA_AGREGAT_I = 0.0;
    double STAN_PALIWA_AGREGAT_II = 0.0;
    int LICZNIK_AGREGAT_I = 0;
    int LICZNIK_AGREGAT_II = 0;
    double STAN_PALIWA = 0.0;
    int LICZNIK = 0;
    int LICZNIK_P = 0;
    double NORMA_AGREGATU2 = 0.0;
    double NORMA_Z_PALIWA = 0.0;
    double NORMA_Z_AGREGATU = 0.0;
    double NORMA_Z_OGRZEWANIA = 0.0;
    double NORMA_Z_AGREGATU2 = 0.0;
    int AGREGAT1 = 0;
    int AGREGAT2 = 0;
};
