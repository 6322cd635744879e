#pragma once

#include "TableObject.h"

// Table TOWARY: goods on an order: consignment, order, sending and receiving places, supplier,
// recipient, name, seven numbers, quantities, unit, delivery date, importer, exporter, delivery
// terms, transit, metres, pieces, clearance texts.
class TTowaryObj : public TableObject<TTowaryObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = true;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TTowaryObj> &description();

    explicit TTowaryObj(Connection &connection) : TableObject(connection) {}

    int ID_TOWARU = 0;
    int ID_PRZESYLKI = 0;
    int ID_ZLECENIA = 0;
    int ID_MIEJSCA_NAD = 0;
    int ID_MIEJSCA_ODB = 0;
    int ID_DOSTAWCY = 0;
    int ID_ODBIORCY = 0;
    QString NAZWA;
    QString NUMER1;
    QString NUMER2;
    QString NUMER3;
    QString NUMER4;
    QString NUMER5;
    QString NUMER6;
    QString NUMER7;
    double ILOSC = 0.0;
    int ID_JEDNOSTKI_MIARY = 0;
    double ILOSC_DEKLAROWANA = 0.0;
    DateTime DATADOSTARCZENIA;
    int ID_FRACHTU = 0;
    int ID_IMPORTER = 0;
    int ID_EXPORTER = 0;
    int LP = 0;
    int ID_INCOTERMS = 0;
    int ID_TRANZYT = 0;
    int BEZPOSREDNIA = 0;
    int LOTNICZA = 0;
    int TRANZYT = 0;
    double METRY = 0.0;
    int SUBSPEDYTOR = 0;
    int ID_SUBSPEDYCJA = 0;
    int ID_SPED_ZLECONY = 0;
    int IDTOWARY_KOSZTY = 0;
    int IDTOWARY_STAWKI = 0;
    double METRY_L = 0.0;
    double SZTUKI = 0.0;
    double ILOSC_OBL = 0.0;
    QString ODPRAWA_WYWOZOWA;
    QString ODPRAWA_PRZYWOZOWA;
    int TOWAR_NR = 0;
    DateTime DATAWYSYLKI;
    double METRY3 = 0.0;
};
