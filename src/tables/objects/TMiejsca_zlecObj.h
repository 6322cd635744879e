#pragma once

#include "TableObject.h"

// Table MIEJSCA_ZLEC: places of an order: one record per order holding up to 18 numbered address
// slots (address, postcode, locality, country, name), the record it belongs to (`ID_ZRP`) and a
// contractor.
class TMiejsca_zlecObj : public TableObject<TMiejsca_zlecObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::Guarded;
    static const TableDescription<TMiejsca_zlecObj> &description();

    explicit TMiejsca_zlecObj(Connection &connection) : TableObject(connection) {}

    // One numbered place of the record; an empty slot has empty texts and
    // country 0. What a slot means is the forms' business.
    struct Slot
    {
        QString ADRES;
        QString KOD;
        QString MIEJSCOWOSC;
        int ID_KRAJU = 0;
        QString NAZWA;

        friend bool operator==(const Slot &, const Slot &) = default;
    };
    static constexpr int SlotCount = 18;

    // number runs from 1 to SlotCount.
    Slot slot(int number) const;
    void setSlot(int number, const Slot &slot);

    int ID_MIEJSCA_ZLEC = 0;
    int ID_ZLECENIA = 0;
    QString ADRES1;
    QString KOD1;
    QString MIEJSCOWOSC1;
    int ID_KRAJU1 = 0;
    QString NAZWA1;
    QString ADRES2;
    QString KOD2;
    QString MIEJSCOWOSC2;
    int ID_KRAJU2 = 0;
    QString NAZWA2;
    QString ADRES3;
    QString KOD3;
    QString MIEJSCOWOSC3;
    int ID_KRAJU3 = 0;
    QString NAZWA3;
    QString ADRES4;
    QString KOD4;
    QString MIEJSCOWOSC4;
    int ID_KRAJU4 = 0;
    QString NAZWA4;
    QString ADRES5;
    QString KOD5;
    QString MIEJSCOWOSC5;
    int ID_KRAJU5 = 0;
    QString NAZWA5;
    QString ADRES6;
    QString KOD6;
    QString MIEJSCOWOSC6;
    int ID_KRAJU6 = 0;
    QString NAZWA6;
    int ID_ZRP = 0;
    int ID_KONTRAHENT = 0;
    QString ADRES7;
    QString KOD7;
    QString MIEJSCOWOSC7;
    int ID_KRAJU7 = 0;
    QString NAZWA7;
    QString ADRES8;
    QString KOD8;
    QString MIEJSCOWOSC8;
    int ID_KRAJU8 = 0;
    QString NAZWA8;
    QString ADRES9;
    QString KOD9;
    QString MIEJSCOWOSC9;
    int ID_KRAJU9 = 0;
    QString NAZWA9;
    QString ADRES10;
    QString KOD10;
    QString MIEJSCOWOSC10;
    int ID_KRAJU10 = 0;
    QString NAZWA10;
    QString ADRES11;
    QString KOD11;
    QString MIEJSCOWOSC11;
    int ID_KRAJU11 = 0;
    QString NAZWA11;
    QString ADRES12;
    QString KOD12;
    QString MIEJSCOWOSC12;
    int ID_KRAJU12 = 0;
    QString NAZWA12;
    QString ADRES13;
    QString KOD13;
    QString MIEJSCOWOSC13;
    int ID_KRAJU13 = 0;
    QString NAZWA13;
    QString ADRES14;
    QString KOD14;
    QString MIEJSCOWOSC14;
    int ID_KRAJU14 = 0;
    QString NAZWA14;
    QString ADRES15;
    QString KOD15;
    QString MIEJSCOWOSC15;
    int ID_KRAJU15 = 0;
    QString NAZWA15;
    QString ADRES16;
    QString KOD16;
    QString MIEJSCOWOSC16;
    int ID_KRAJU16 = 0;
    QString NAZWA16;
    QString ADRES17;
    QString KOD17;
    QString MIEJSCOWOSC17;
    int ID_KRAJU17 = 0;
    QString NAZWA17;
    QString ADRES18;
    QString KOD18;
    QString MIEJSCOWOSC18;
    int ID_KRAJU18 = 0;
    QString NAZWA18;
};
