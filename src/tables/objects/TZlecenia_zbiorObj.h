#pragma once

#include "TableObject.h"

// Table ZLECENIA_ZBIOR: collective orders (one run of a vehicle that carries several incoming
// orders): number, date, loading and unloading place, contractor, ramp, dates, carrier, vehicle,
// driver, tariffs, fuel and counter readings, carrier invoice data, route.
class TZlecenia_zbiorObj : public TableObject<TZlecenia_zbiorObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TZlecenia_zbiorObj> &description();

    explicit TZlecenia_zbiorObj(Connection &connection) : TableObject(connection) {}

    int ID_ZLECENIA_ZBIOR = 0;
    int NUMER = 0;
    DateTime DATA;
    int IDMIEJSCAZALAD = 0;
    int IDMIEJSCAROZLAD = 0;
    int IDKONTRAHENTA = 0;
    int NRRAMPY = 0;
    DateTime DATAZALADUNKU;
    DateTime DATAWYLADUNKU;
    int IDPRZEWOZNIK = 0;
    int IDPOJAZDU = 0;
    QString TELEFON;
    int TERMINPLATNOSCI = 0;
    QString UBEZPIECZENIE;
    int IDUWAGI = 0;
    int IDUSER = 0;
    int IDKIEROWCY = 0;
    int IDTARYFYPRZEWOZNIK = 0;
    int IDTARYFYWLASNEJ = 0;
    int NRJAZDY = 0;
    QString FAKTURA_OBCA;
    int CZASAGREGATU = 0;
    int CZASOGRZEWANIA = 0;
    double CIAGNIKZAKUP = 0.0;
    double AGREGATZAKUP = 0.0;
    double OGRZEWANIEZAKUP = 0.0;
    double CIAGNIKZUZYCIEREAL = 0.0;
    double AGREGATZUZYCIEREAL = 0.0;
    double OGRZEWANIEZUZYCIEREAL = 0.0;
    double STAWKA = 0.0;
    int KMPOCZATKOWE = 0;
    int KMKONCOWE = 0;
    double PALIWO_STAN_POCZ = 0.0;
    double PALIWO_STAN_KONC = 0.0;
    double AGREGAT_STAN_POCZ = 0.0;
    double AGREGAT_STAN_KONC = 0.0;
    int IDVAT_PRZEWOZNIK = 0;
    DateTime DATAWYSTAWIENIA_PRZEWOZNIK;
    double KWOTA_PRZEWOZNIKA = 0.0;
    QString TRASA;
};
