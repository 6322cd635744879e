#include "TFaktury_pozycjeObj.h"

const TableDescription<TFaktury_pozycjeObj> &TFaktury_pozycjeObj::description()
{
    using T = TFaktury_pozycjeObj;
    static const TableDescription<T> d{
        {QStringLiteral("FAKTURY_POZYCJE"), QStringLiteral("ID_POZYCJI"), ErrorLogFile::Sql, InsertWording::WithoutDo},
        &T::ID_POZYCJI,
        {
            {QStringLiteral("ID_FAKTURY"), &T::ID_FAKTURY},
            {QStringLiteral("TRESC"), &T::TRESC},
            {QStringLiteral("ILOSC"), &T::ILOSC},
            {QStringLiteral("JM"), &T::JM},
            {QStringLiteral("SWWKU"), &T::SWWKU},
            {QStringLiteral("CENA_NETTO"), &T::CENA_NETTO},
            {QStringLiteral("ID_VAT"), &T::ID_VAT},
            {QStringLiteral("ID_TABELI"), &T::ID_TABELI},
            {QStringLiteral("KWOTA_W_WALUCIE"), &T::KWOTA_W_WALUCIE},
            {QStringLiteral("LINK_NADRZEDNY"), &T::LINK_NADRZEDNY},
            {QStringLiteral("ID_WALUTY"), &T::ID_WALUTY},
            {QStringLiteral("RODZAJ_USLUGI"), &T::RODZAJ_USLUGI},
            {QStringLiteral("KONTO_WN"), &T::KONTO_WN},
            {QStringLiteral("KONTO_MA"), &T::KONTO_MA},
            {QStringLiteral("ZERO_KRAJ"), &T::ZERO_KRAJ},
            {QStringLiteral("TRESC_EN"), &T::TRESC_EN},
            {QStringLiteral("IDOPIS"), &T::IDOPIS},
            {QStringLiteral("DATA_WAZNOSCI"), &T::DATA_WAZNOSCI},
            {QStringLiteral("KZ"), &T::KZ},
            {QStringLiteral("ID_TOWARU"), &T::ID_TOWARU},
            {QStringLiteral("SYMBOL"), &T::SYMBOL},
            {QStringLiteral("WARTOSC_NETTO"), &T::WARTOSC_NETTO},
            {QStringLiteral("WARTOSC_BRUTTO"), &T::WARTOSC_BRUTTO},
            {QStringLiteral("WARTOSC_VAT"), &T::WARTOSC_VAT},
            {QStringLiteral("KOD"), &T::KOD},
            {QStringLiteral("CENA_DETALICZNA"), &T::CENA_DETALICZNA},
            {QStringLiteral("UPUST"), &T::UPUST},
            {QStringLiteral("NETTO_PRZED_U"), &T::NETTO_PRZED_U},
            {QStringLiteral("BRUTTO_PRZED_U"), &T::BRUTTO_PRZED_U},
            {QStringLiteral("URZEDOWE"), &T::URZEDOWE},
            {QStringLiteral("IDTEKSTU"), &T::IDTEKSTU},
            {QStringLiteral("IDKONTA_KSIEGOWEGO"), &T::IDKONTA_KSIEGOWEGO},
            {QStringLiteral("KONTOVAT"), &T::KONTOVAT},
            {QStringLiteral("IDVAT"), &T::IDVAT},
            {QStringLiteral("KWOTA"), &T::KWOTA},
            {QStringLiteral("SPED_TRANS"), &T::SPED_TRANS},
            {QStringLiteral("KATEGORIAF"), &T::KATEGORIAF},
            {QStringLiteral("ID_KIEROWCY"), &T::ID_KIEROWCY},
            {QStringLiteral("ID_POJAZDU"), &T::ID_POJAZDU},
            {QStringLiteral("ID_ZLECENIA"), &T::ID_ZLECENIA},
            {QStringLiteral("ID_KOSZTU"), &T::ID_KOSZTU},
        },
    };
    return d;
}
