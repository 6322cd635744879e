#pragma once

#include "TableObject.h"

// Table KIEROWCY: drivers: names, address, telephone numbers, tax and personal identity numbers,
// parents' names, birth date and place, pay group, inactive flag.
class TKierowcyObj : public TableObject<TKierowcyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TKierowcyObj> &description();

    explicit TKierowcyObj(Connection &connection) : TableObject(connection) {}

    int ID_KIEROWCA = 0;
    QString IMIE;
    QString IMIE2;
    QString NAZWISKO;
    QString ADRES;
    QString MIEJSCOWSC;
    QString KOD;
    QString WOJEWODZTWO;
    QString GMINA;
    QString POWIAT;
    QString POCZTA;
    QString TEL_DOM;
    QString TEL_KOM;
    QString NIP;
    QString PESEL;
    QString IM_OJCA;
    QString IM_MATKI;
    DateTime DATA_UR;
    QString M_URODZ;
    QString REGON;
    QString NR_DZIALGOSP;
    int GRUPA_ZASZEREGOWANIA = 0;
    int NIEAKTYWNY = 0;
};
