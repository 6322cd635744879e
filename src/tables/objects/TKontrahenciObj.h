#pragma once

#include "TableObject.h"

// Table KONTRAHENCI: contractors (customers and carriers): short name, name, tax numbers, address,
// country, payment method and days, active flag, credit limit, currency, bank account, contact
// data, entry date, free fields, filters, payer and debt-register data.
class TKontrahenciObj : public TableObject<TKontrahenciObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TKontrahenciObj> &description();

    explicit TKontrahenciObj(Connection &connection) : TableObject(connection) {}

    int ID_KONTRAHENTA = 0;
    QString SKROT;
    QString NAZWA;
    QString NIP;
    QString ADRES;
    QString MIEJSCOWOSC;
    QString WOJEWODZTWO;
    int ID_KRAJU = 0;
    QString UWAGI;
    int ID_RODZ_PLATNOSCI = 0;
    int PLATNOSC_DNI = 0;
    int AKTYWNY = 0;
    QString KOD;
    QString REGON;
    int NR_IDENT = 0;
    int KIERUNEK = 0;
    int ID_TEKSTU_STALEGO = 0;
    int NR_KARTY = 0;
    double LIMIT_KREDYTOWY = 0.0;
    int ID_WALUTY = 0;
    QString NIP_BK;
    QString EURONIP_1;
    QString EURONIP_2;
    int IDKONTA = 0;
    QString TELEFON;
    int DATA_KURSOW = 0;
    int STATUS = 0;
    QString OSOBA;
    QString FAX;
    QString WWW;
    QString EMAIL;
    DateTime DATA_WPISU;
    int ID_OSOBA = 0;
    QString UWAGI1;
    QString UWAGI2;
    int IDFILTR_PRZYCH1 = 0;
    QString POLE1;
    QString POLE2;
    QString POLE3;
    int TRANSAKCJE = 0;
    DateTime DATA_UB;
    QString FIRMA_UB;
    DateTime OSTATNIA_UB;
    double KWOTA_UB = 0.0;
    QString PLATNIK_NAZWISKO;
    QString KRD_UWAGI;
    QString PLATNIK_TEL;
    DateTime KRD_DATA;
    QString LICENCJA;
    QString LICENCJA_AKTYWNA;

    // Lists are read in one forward pass, without a scrollable buffer.
    bool UniDirectional = false;
};
