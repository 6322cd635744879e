#pragma once

#include "TableObject.h"

// Table FAKTURY: invoices: sequence number and full number, document kind, contractor, issue and
// sale dates, payment method and days, remarks, approval and payment state, bank account, currency
// and rate table, net and gross values, sending and fiscal state.
class TFakturyObj : public TableObject<TFakturyObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::Unguarded;
    static const TableDescription<TFakturyObj> &description();

    explicit TFakturyObj(Connection &connection) : TableObject(connection) {}

    int ID_FAKTURY = 0;
    int NR_KOLEJNY = 0;
    QString NUMER_PELNY;
    int ID_RODZAJ_DOK = 0;
    int GATUNEK_DOK_NADRZ = 0;
    int ID_KONTRAHENTA = 0;
    DateTime DATA_WYSTAWIENIA;
    DateTime DATA_SPRZEDAZY;
    int ID_RODZ_PLATNOSCI = 0;
    int ILOSC_DNI_PLATN = 0;
    QString UWAGI;
    int ID_STALY_TEKST = 0;
    int ID_WYSTAWIL = 0;
    QString ODEBRAL;
    int LINK_FAKTURA = 0;
    int ZATWIERDZONY = 0;
    int KONTO_BANKOWE = 0;
    int ZAPLACONA = 0;
    DateTime ZAPLACONA_DNIA;
    QString NUMER_ROZSZERZONY;
    QString MASKA;
    double KWOTA_ZAPLACONA = 0.0;
    QString WYCIAG;
    DateTime DATA_ZAPLATY;
    QString OPIS_POZYCJI;
    int ID_DOKUMENTU = 0;
    QString EURONIP_S;
    QString EURONIP_K;
    int IDMAGAZYN = 0;
    double ZAPLATA_EUR = 0.0;
    int PRZESLANA_XML = 0;
    DateTime PRZESLANA_DATA_XML;
    int IDKASA_KP = 0;
    DateTime DATA_WPROWADZENIA;
    int ID_REJESTR = 0;
    int IDWALUTA = 0;
    int IDTABELA = 0;
    int PLATNIK = 0;
    double WARTOSC_NETTO = 0.0;
    double WARTOSC_BRUTTO = 0.0;
    int PRZESLANA = 0;
    DateTime PRZESLANA_DATA;
    int PRZESLANA_ID = 0;
    int TRANSAKCJE = 0;
    DateTime FISKALIZOWANY;
    int FISKALIZOWAL = 0;
    double WARTOSC_WALUTA = 0.0;
    QString UWAGI1;
    QString UWAGI2;
    int KOMPESATA = 0;
    int KONTO_BANKOWE1 = 0;
    int DZIAL = 0;

    // Lists are read in one forward pass, without a scrollable buffer.
    bool UniDirectional = false;
};
