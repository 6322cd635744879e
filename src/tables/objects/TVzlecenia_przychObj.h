#pragma once

#include "TableObject.h"

// View VZLECENIA_PRZYCH: view over incoming orders with the names of contractor, carrier and
// cities resolved.
class TVzlecenia_przychObj : public TableObject<TVzlecenia_przychObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TVzlecenia_przychObj> &description();

    explicit TVzlecenia_przychObj(Connection &connection) : TableObject(connection) {}

    int ID_ZLECENIA_PRZYCH = 0;
    int NUMER = 0;
    DateTime DATA;
    QString TYP;
    int IDKONTRAHENT = 0;
    int IDPRZEWOZNIK = 0;
    QString KONTRAHENT;
    QString PRZEWOZNIK;
    QString MIASTOOD;
    QString MIASTOVIA;
    QString MIASTODO;
    int IDFAKTURY = 0;
    double STAWKA_RAZEM = 0.0;
    double KWOTA = 0.0;
    double STAWKA_KMLAD = 0.0;
    double STAWKA_KMPUSTY = 0.0;
    double STAWKA_GODZINY = 0.0;
    double STAWKA_PALETY = 0.0;
    int KM_LADOWNE = 0;
    double KM_PUSTE = 0.0;
    int ILOSC_GODZIN = 0;
    double OPLATA_SKARBOWA = 0.0;
    QString POJAZD;
    int DOK_WZ = 0;
    int NRFAKTURY = 0;
    DateTime FAK_DWYST;
    int NR_KARTY = 0;
    int NR_LISTU = 0;
    int PALETYILOSC = 0;
    QString KIEROWCA;
    int IDKIEROWCY = 0;
    int IDKARTYDR = 0;
    double RABAT = 0.0;
    double KWOTA_PO_RABACIE = 0.0;
    QString OPERATOR;
    int IDUSER = 0;
    double KOSZTRAZEM = 0.0;
    int IDFILTR1 = 0;
    QString NUMER_OBCY;
    int ZAMKNIETE = 0;
    QString FILTR1;
    QString NUMER_OBCA_FAK;
    double KWOTA_OBCA_FAKT = 0.0;

    // Lists are read in one forward pass, without a scrollable buffer.
    bool UniDirectional = false;
};
