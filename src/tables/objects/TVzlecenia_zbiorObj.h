#pragma once

#include "TableObject.h"

// View VZLECENIA_ZBIOR: view over collective orders with the names of places, contractor, carrier,
// vehicle, driver and user resolved.
class TVzlecenia_zbiorObj : public TableObject<TVzlecenia_zbiorObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TVzlecenia_zbiorObj> &description();

    explicit TVzlecenia_zbiorObj(Connection &connection) : TableObject(connection) {}

    int ID_ZLECENIA_ZBIOR = 0;
    int NUMER = 0;
    DateTime DATA;
    int IDMIEJSCAZALAD = 0;
    QString MIEJSCEZALAD;
    int IDMIEJSCAROZLAD = 0;
    QString MIEJSCEWYLADUNKU;
    int IDKONTRAHENTA = 0;
    QString KONTRAHENT;
    int NRRAMPY = 0;
    DateTime DATAZALADUNKU;
    DateTime DATAWYLADUNKU;
    int IDTARYFYPRZEWOZNIK = 0;
    int IDTARYFYWLASNEJ = 0;
    int IDPRZEWOZNIK = 0;
    QString PRZEWOZNIK;
    int IDPOJAZDU = 0;
    QString POJAZD;
    QString NACZEPA;
    int LADOWNOSCPALET = 0;
    int IDKIEROWCY = 0;
    QString KIEROWCA;
    QString TELEFON;
    int TERMINPLATNOSCI = 0;
    QString UBEZPIECZENIE;
    int IDUWAGI = 0;
    int IDUSER = 0;
    QString USERNAME;
    int NRJAZDY = 0;
    double SUMAPRZEWOZNIKA = 0.0;
    double SUMAWLASNA = 0.0;
    QString FAKTURA_OBCA;
    double STAWKA = 0.0;
    double ZUZYCIE_REALNE = 0.0;
    double ZUZYCIE_TEORET_OGRZEW = 0.0;
    double ZUZYCIE_TEORETYCZNE = 0.0;
    double ZUZYCIE_TEORET_AGREGAT = 0.0;
    double CIAGNIKZAKUP = 0.0;
    double AGREGATZAKUP = 0.0;
    double OGRZEWANIEZAKUP = 0.0;
    double NORMA_POJAZD = 0.0;
    double NORMA_AGREGAT = 0.0;
    double NORMA_OGRZEWANIE = 0.0;
    int IDVAT_PRZEWOZNIK = 0;
    DateTime DATAWYSTAWIENIA_PRZEWOZNIK;
    double KWOTA_PRZEWOZNIKA = 0.0;
    double KWOTA_PRZEWOZNIKA_BRUTTO = 0.0;
    int KMPOCZATKOWE = 0;
    int KMKONCOWE = 0;
    double AGREGAT_STAN_POCZ = 0.0;
    double AGREGAT_STAN_KONC = 0.0;
    int CZASOGRZEWANIA = 0;
};
