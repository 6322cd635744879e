#pragma once

#include "TableObject.h"

// Table ZLECENIA_SPED: forwarding orders handed on to carriers, with the carrier's invoice, own
// and carrier rates in currency, customs clearance, route, dates and filters.
class TZlecenia_spedObj : public TableObject<TZlecenia_spedObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TZlecenia_spedObj> &description();

    explicit TZlecenia_spedObj(Connection &connection) : TableObject(connection) {}

    int ID_ZLECENIA_SPED = 0;
    int NR_KOLEJNY = 0;
    QString NUMER_PELNY;
    int ID_ZLECENIODAWCY = 0;
    DateTime DATA_ZLECENIA;
    QString NR_FAKTURY_OBCEJ;
    DateTime DATA_FAKTURY_OBCEJ;
    int DNI_PLAT_FAKTURY_OBCEJ = 0;
    int ZAPLACONO_FAKTURE_OBCA = 0;
    DateTime DATA_ZAPL_FAKTURY_OBCEJ;
    double NETTO_FAKTURA_OBCA = 0.0;
    double BRUTTO_FAKTURA_OBCA = 0.0;
    int ID_FAKTURY = 0;
    QString UWAGI_DO_FAKTURY;
    int DNI_PLAT_FAKTURY_WLASNEJ = 0;
    int ID_WYKONAWCY = 0;
    QString REJ_POJAZDU_OBCEGO;
    QString REJ_NACZEPY_OBCEJ;
    QString KIEROWCA_OBCY;
    QString ZMIENNIK_OBCY;
    QString WARUNKI_DODATKOWE;
    QString ODPRAWA_CELNA_WYWOZOWA;
    QString ODPRAWA_CELNA_PRZYWOZ;
    QString ODPRAWA_CELNA_GRANICZNA;
    QString TRASA_OD;
    QString TRASA_DO;
    int ID_USER = 0;
    int IMP_EXP_KRAJ = 0;
    int ID_TEKSTU_STALEGO = 0;
    DateTime DATA_ZALADUNKU;
    DateTime DATA_ROZLADUNKU;
    QString GODZINA_ROZLADUNKU;
    double STAWKA_WLASNA = 0.0;
    int ID_WALUTY_SW = 0;
    int ID_TABELI_SW = 0;
    double STAWKA_KRAJOWA_SW = 0.0;
    int ID_VAT_KRAJOWA_SW = 0;
    double PRZEWOZNIK_STAWKA = 0.0;
    int ID_WALUTY_PS = 0;
    int ID_TABELI_PS = 0;
    double STAWKA_KRAJOWA_PS = 0.0;
    int ID_VAT_KRAJOWA_PS = 0;
    int LINK_ZLECENIE = 0;
    QString GODZINA_ZALADUNKU;
    int ID_KATEGORIA = 0;
    QString PRZELADUNEK;
    int OCZEKUJACE = 0;
    int KILOMETRY = 0;
    double ZYSK = 0.0;
    int ID_IMPORTER = 0;
    int ID_EXPORTER = 0;
    QString DODATKOWY_OPIS_LADUNKU;
    int NR_JAZDY = 0;
    QString NR_KSIEGOWY;
    QString WARUNKI_DODKOWE_CD;
    QString DODATKOWY_OPIS_LADUNKU_CD;
    QString WARUNKI_DODATKOWE_CD;
    int ZBIOROWKA = 0;
    double OPLATA_SKARBOWA = 0.0;
    int ID_VAT_SW = 0;
    int ID_VAT_PS = 0;
    QString UWAGI_DO_FAKTURY1;
    QString UWAGI_DO_FAKTURY2;
    QString UWAGI_DO_FAKTURY3;
    int TONY_SW = 0;
    int TONY_PS = 0;
    double KWOTA_ZA_TONE_SW = 0.0;
    double KWOTA_ZA_TONE_PS = 0.0;
    double TONAZ = 0.0;
    QString ZLADAUNEK0;
    QString WYLADUNEK0;
    QString EURONIP_1;
    QString EURONIP_2;
    int IDKARTY = 0;
    double OBROTY_NETTO = 0.0;
    double PRZEWOZNIK_NETTO = 0.0;
    double RABAT = 0.0;
    double KWOTA_PO_RABACIE = 0.0;
    double OBROTY_PO_RABACIE = 0.0;
    int KOLKO = 0;
    int KONIEC_FRACHTU = 0;
    int FILTR1 = 0;
    int FILTR2 = 0;
    int FILTR3 = 0;
    int ID_REJESTRY = 0;
    int ID_TEKSTY = 0;
    int ID_KRAJU = 0;
    int KATEGORIAZ = 0;
    int RADIO = 0;
    QString RADIO_KOD;
    DateTime DATA_PRZEWIDYWANA;
    double SW_KM = 0.0;
    double PS_KM = 0.0;
    double STAWKA_POZA_UNIA = 0.0;
    int KRAJ1 = 0;
    double VATPLN = 0.0;

    // Lists are read in one forward pass, without a scrollable buffer.
    bool UniDirectional = false;
};
