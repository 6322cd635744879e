#pragma once

#include "TableObject.h"

// Table ZLECENIA_PRZYCH: incoming orders (orders received from customers): date, customer,
// pallets, ramp, returns, advice and delivery dates, carrier, cities from/via/to, distance,
// amounts and rates, tariff, invoice links, vehicle, driver, road card, carrier invoice data,
// filters, closed flag.
class TZlecenia_przychObj : public TableObject<TZlecenia_przychObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = true;
    static constexpr MaxIdKind MaxId = MaxIdKind::Unguarded;
    static const TableDescription<TZlecenia_przychObj> &description();

    explicit TZlecenia_przychObj(Connection &connection) : TableObject(connection) {}

    int ID_ZLECENIA_PRZYCH = 0;
    DateTime DATA;
    int IDKONTRAHENTA = 0;
    int PALETYILOSC = 0;
    int PALETYPLAN = 0;
    int NRRAMPY = 0;
    int ZWROTY = 0;
    DateTime AWIZO;
    DateTime DOSTARCZENIE;
    int IDPRZEWOZNIK = 0;
    QString TELEFON;
    int IDZLECENIAZBIOR = 0;
    int IDFAKTURY = 0;
    int IDMIASTO_OD = 0;
    int IDMIASTO_VIA = 0;
    int IDMIASTO_DO = 0;
    int ODLEGLOSC = 0;
    double KWOTA = 0.0;
    int KM_LADOWNE = 0;
    int IDTARYFY = 0;
    int IDMIASTO = 0;
    int IDFAKTUROBIORCY = 0;
    int IDMIASTAZALADUNKU = 0;
    QString TYP;
    DateTime DATA_ROZLADUNKU;
    double KOSZTKWOTA = 0.0;
    int IDTARYFYKOSZT = 0;
    double OPLATA_SKARBOWA = 0.0;
    QString POJAZD;
    QString NACZEPA;
    int NUMER = 0;
    QString NUMER_OBCY;
    int DOK_WZ = 0;
    double STAWKA_KMLAD = 0.0;
    double STAWKA_KMPUSTY = 0.0;
    double STAWKA_GODZINY = 0.0;
    double STAWKA_RAZEM = 0.0;
    int NR_KARTY = 0;
    int NR_LISTU = 0;
    QString DODATKOWY_OPIS;
    double KM_PUSTE = 0.0;
    double STAWKA_PALETY = 0.0;
    double ILOSC_GODZIN = 0.0;
    double GODZINY1 = 0.0;
    QString KIEROWCA;
    int IDKIEROWCY = 0;
    int IDKARTYDR = 0;
    int PRZEWOZNIKWLASNY = 0;
    int IDPOJAZDU = 0;
    QString POJAZDOBCY;
    int LADOWNOSCPALET = 0;
    double RABAT = 0.0;
    double KWOTA_PO_RABACIE = 0.0;
    int IDUSER = 0;
    double KOSZTYRAZEM = 0.0;
    double KOSZTRAZEM = 0.0;
    DateTime DATA_FAKT_OTRZYMANIA;
    DateTime DATA_FAKT_WYSTAWIENIA;
    DateTime DATA_FAKT_PLATNOSCI;
    double KWOTA_FAKT_PRZEW = 0.0;
    int DNI_FAKT = 0;
    QString NUMER_FAKT_PRZEW;
    double ZAPLACONA_KWOTA = 0.0;
    int FILTR1 = 0;
    int FILTR2 = 0;
    int IDKARTY = 0;
    int ZAMKNIETE = 0;

    // Lists are read in one forward pass, without a scrollable buffer.
    bool UniDirectional = false;
};
