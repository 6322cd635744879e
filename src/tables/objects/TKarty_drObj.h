#pragma once

#include "TableObject.h"

// Table KARTY_DR: road cards (trip sheets): driver, vehicle, trailer, order, permits, fuel stocks
// and counters of the vehicle, its two generating sets and heating, fuel bought, costs, norms,
// theoretical use, driver's pay rates.
class TKarty_drObj : public TableObject<TKarty_drObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TKarty_drObj> &description();

    explicit TKarty_drObj(Connection &connection) : TableObject(connection) {}

    int ID_KARTY_DR = 0;
    int IDKIEROWCA = 0;
    int IDPOJAZD = 0;
    int IDNACZEPA = 0;
    int IDZLECENIA = 0;
    int NRZLECENIA = 0;
    QString CMR;
    QString ZEZWOLENIA;
    QString KARNETY;
    double STAN_POCZ = 0.0;
    double STAN_KONCOWY = 0.0;
    int LICZNIK_POCZ = 0;
    int LICZNIK_KONCOWY = 0;
    int LICZNIK_ILOSC = 0;
    int KM_PUSTE = 0;
    int KM_LADOWNE = 0;
    QString UWAGI;
    double STAN_POCZ_A1 = 0.0;
    double STAN_KONCOWY_A1 = 0.0;
    double STAN_POCZ_A2 = 0.0;
    double STAN_KONCOWY_A2 = 0.0;
    int LICZNIK_POCZ_A1 = 0;
    int LICZNIK_KONCOWY_A1 = 0;
    int LICZNIK_ILOSC_A1 = 0;
    int LICZNIK_POCZ_A2 = 0;
    int LICZNIK_KONCOWY_A2 = 0;
    int LICZNIK_ILOSC_A2 = 0;
    double PALIWO_NETTO = 0.0;
    double PALIWO_BRUTTO = 0.0;
    double KOSZT_NETTO = 0.0;
    double KOSZT_BRUTTO = 0.0;
    QString REJ_POJAZD;
    QString REJ_NACZEPA;
    QString KIEROWCA;
    double ZUZYCIE = 0.0;
    double ZUZYCIE_A1 = 0.0;
    double ZUZYCIE_A2 = 0.0;
    double ZUZYCIE_CALE = 0.0;
    double RAZEM_NETTO = 0.0;
    double RAZEM_BRUTTO = 0.0;
    int NUMER = 0;
    DateTime Z_DNIA;
    double PALIWO_ZAKUPIONE = 0.0;
    double PALIWO_ZAKUPIONE_A1 = 0.0;
    double PALIWO_ZAKUPIONE_A2 = 0.0;
    double PALIWO_ZAKUPIONE_RAZEM = 0.0;
    int KM = 0;
    double PALIWO_VAT = 0.0;
    double KOSZT_VAT = 0.0;
    double RAZEM_VAT = 0.0;
    int PALETY_RAZEM = 0;
    double KIEROWCA_PLACA = 0.0;
    int KIEROWCA_ID_STAWKI = 0;
    double STAWKA_KIER1 = 0.0;
    double STAWKA_KIER2 = 0.0;
    double STAWKA_KIER3 = 0.0;
    double STAWKA_KIER4 = 0.0;
    double STAWKA_KIER5 = 0.0;
    double STAWKA_KIER6 = 0.0;
    double GODZINY_RAZEM = 0.0;
    double NORMA_POJAZD = 0.0;
    double NORMA_AGREGAT1 = 0.0;
    double NORMA_AGREGAT2 = 0.0;
    int NORMA_ZIMOWA = 0;
    double NORMA_OGRZEWANIE = 0.0;
    double STAN_POCZ_OG = 0.0;
    double STAN_KONCOWY_OG = 0.0;
    double ZUZYCIE_OG = 0.0;
    double PALIWO_ZAKUPIONE_OG = 0.0;
    double OGRZEWANIE_ILOSC = 0.0;
    double UNORM_POJAZD = 0.0;
    double UNORM_AGREGAT1 = 0.0;
    double UNORM_AGREGAT2 = 0.0;
    double UNORM_OGRZEWANIE = 0.0;
    double TEORET_POJAZD = 0.0;
    double TEORET_AGREGAT1 = 0.0;
    double TEORET_AGREGAT2 = 0.0;
    double TEORET_OGRZEWANIE = 0.0;
    double TEORET_RAZEM = 0.0;
    double INNE_NETTO = 0.0;
    double INNE_BRUTTO = 0.0;
};
