#include "TTowaryObj.h"

const TableDescription<TTowaryObj> &TTowaryObj::description()
{
    using T = TTowaryObj;
    static const TableDescription<T> d{
        {QStringLiteral("TOWARY"), QStringLiteral("ID_TOWARU"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_TOWARU,
        {
            {QStringLiteral("ID_PRZESYLKI"), &T::ID_PRZESYLKI},
            {QStringLiteral("ID_ZLECENIA"), &T::ID_ZLECENIA},
            {QStringLiteral("ID_MIEJSCA_NAD"), &T::ID_MIEJSCA_NAD},
            {QStringLiteral("ID_MIEJSCA_ODB"), &T::ID_MIEJSCA_ODB},
            {QStringLiteral("ID_DOSTAWCY"), &T::ID_DOSTAWCY},
            {QStringLiteral("ID_ODBIORCY"), &T::ID_ODBIORCY},
            {QStringLiteral("NAZWA"), &T::NAZWA},
            {QStringLiteral("NUMER1"), &T::NUMER1},
            {QStringLiteral("NUMER2"), &T::NUMER2},
            {QStringLiteral("NUMER3"), &T::NUMER3},
            {QStringLiteral("NUMER4"), &T::NUMER4},
            {QStringLiteral("NUMER5"), &T::NUMER5},
            {QStringLiteral("NUMER6"), &T::NUMER6},
            {QStringLiteral("NUMER7"), &T::NUMER7},
            {QStringLiteral("ILOSC"), &T::ILOSC},
            {QStringLiteral("ID_JEDNOSTKI_MIARY"), &T::ID_JEDNOSTKI_MIARY},
            {QStringLiteral("ILOSC_DEKLAROWANA"), &T::ILOSC_DEKLAROWANA},
            {QStringLiteral("DATADOSTARCZENIA"), &T::DATADOSTARCZENIA},
            {QStringLiteral("ID_FRACHTU"), &T::ID_FRACHTU},
            {QStringLiteral("ID_IMPORTER"), &T::ID_IMPORTER},
            {QStringLiteral("ID_EXPORTER"), &T::ID_EXPORTER},
            {QStringLiteral("LP"), &T::LP},
            {QStringLiteral("ID_INCOTERMS"), &T::ID_INCOTERMS},
            {QStringLiteral("ID_TRANZYT"), &T::ID_TRANZYT},
            {QStringLiteral("BEZPOSREDNIA"), &T::BEZPOSREDNIA},
            {QStringLiteral("LOTNICZA"), &T::LOTNICZA},
            {QStringLiteral("TRANZYT"), &T::TRANZYT},
            {QStringLiteral("METRY"), &T::METRY},
            {QStringLiteral("SUBSPEDYTOR"), &T::SUBSPEDYTOR},
            {QStringLiteral("ID_SUBSPEDYCJA"), &T::ID_SUBSPEDYCJA},
            {QStringLiteral("ID_SPED_ZLECONY"), &T::ID_SPED_ZLECONY},
            {QStringLiteral("IDTOWARY_KOSZTY"), &T::IDTOWARY_KOSZTY},
            {QStringLiteral("IDTOWARY_STAWKI"), &T::IDTOWARY_STAWKI},
            {QStringLiteral("METRY_L"), &T::METRY_L},
            {QStringLiteral("SZTUKI"), &T::SZTUKI},
            {QStringLiteral("ILOSC_OBL"), &T::ILOSC_OBL},
            {QStringLiteral("ODPRAWA_WYWOZOWA"), &T::ODPRAWA_WYWOZOWA},
            {QStringLiteral("ODPRAWA_PRZYWOZOWA"), &T::ODPRAWA_PRZYWOZOWA},
            {QStringLiteral("TOWAR_NR"), &T::TOWAR_NR},
            {QStringLiteral("DATAWYSYLKI"), &T::DATAWYSYLKI},
            {QStringLiteral("METRY3"), &T::METRY3},
        },
    };
    return d;
}
