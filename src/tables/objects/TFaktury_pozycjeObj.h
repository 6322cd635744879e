#pragma once

#include "TableObject.h"

// Table FAKTURY_POZYCJE: invoice lines: invoice, text, quantity, unit, classification code, net
// price, VAT rate, rate table, amount in currency, currency, service kind, ledger accounts,
// values, discount, links to driver, vehicle, order and cost.
class TFaktury_pozycjeObj : public TableObject<TFaktury_pozycjeObj>
{
public:
    static constexpr TableShape Shape = TableShape::Long;
    static constexpr bool HasSelectById = false;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TFaktury_pozycjeObj> &description();

    explicit TFaktury_pozycjeObj(Connection &connection) : TableObject(connection) {}

    int ID_POZYCJI = 0;
    int ID_FAKTURY = 0;
    QString TRESC;
    double ILOSC = 0.0;
    QString JM;
    QString SWWKU;
    double CENA_NETTO = 0.0;
    int ID_VAT = 0;
    int ID_TABELI = 0;
    double KWOTA_W_WALUCIE = 0.0;
    int LINK_NADRZEDNY = 0;
    int ID_WALUTY = 0;
    int RODZAJ_USLUGI = 0;
    QString KONTO_WN;
    QString KONTO_MA;
    int ZERO_KRAJ = 0;
    QString TRESC_EN;
    int IDOPIS = 0;
    DateTime DATA_WAZNOSCI;
    QString KZ;
    int ID_TOWARU = 0;
    QString SYMBOL;
    double WARTOSC_NETTO = 0.0;
    double WARTOSC_BRUTTO = 0.0;
    double WARTOSC_VAT = 0.0;
    QString KOD;
    double CENA_DETALICZNA = 0.0;
    double UPUST = 0.0;
    double NETTO_PRZED_U = 0.0;
    double BRUTTO_PRZED_U = 0.0;
    int URZEDOWE = 0;
    int IDTEKSTU = 0;
    int IDKONTA_KSIEGOWEGO = 0;
    QString KONTOVAT;
    int IDVAT = 0;
    double KWOTA = 0.0;
    int SPED_TRANS = 0;
    int KATEGORIAF = 0;
    int ID_KIEROWCY = 0;
    int ID_POJAZDU = 0;
    int ID_ZLECENIA = 0;
    int ID_KOSZTU = 0;

    // Lists are read in one forward pass, without a scrollable buffer.
    bool UniDirectional = false;
};
