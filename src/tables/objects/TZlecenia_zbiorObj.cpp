#include "TZlecenia_zbiorObj.h"

const TableDescription<TZlecenia_zbiorObj> &TZlecenia_zbiorObj::description()
{
    using T = TZlecenia_zbiorObj;
    static const TableDescription<T> d{
        {QStringLiteral("ZLECENIA_ZBIOR"), QStringLiteral("ID_ZLECENIA_ZBIOR"), ErrorLogFile::Sql, InsertWording::WithDo},
        &T::ID_ZLECENIA_ZBIOR,
        {
            {QStringLiteral("NUMER"), &T::NUMER},
            {QStringLiteral("DATA"), &T::DATA},
            {QStringLiteral("IDMIEJSCAZALAD"), &T::IDMIEJSCAZALAD},
            {QStringLiteral("IDMIEJSCAROZLAD"), &T::IDMIEJSCAROZLAD},
            {QStringLiteral("IDKONTRAHENTA"), &T::IDKONTRAHENTA},
            {QStringLiteral("NRRAMPY"), &T::NRRAMPY},
            {QStringLiteral("DATAZALADUNKU"), &T::DATAZALADUNKU},
            {QStringLiteral("DATAWYLADUNKU"), &T::DATAWYLADUNKU},
            {QStringLiteral("IDPRZEWOZNIK"), &T::IDPRZEWOZNIK},
            {QStringLiteral("IDPOJAZDU"), &T::IDPOJAZDU},
            {QStringLiteral("TELEFON"), &T::TELEFON},
            {QStringLiteral("TERMINPLATNOSCI"), &T::TERMINPLATNOSCI},
            {QStringLiteral("UBEZPIECZENIE"), &T::UBEZPIECZENIE},
            {QStringLiteral("IDUWAGI"), &T::IDUWAGI},
            {QStringLiteral("IDUSER"), &T::IDUSER},
            {QStringLiteral("IDKIEROWCY"), &T::IDKIEROWCY},
            {QStringLiteral("IDTARYFYPRZEWOZNIK"), &T::IDTARYFYPRZEWOZNIK},
            {QStringLiteral("IDTARYFYWLASNEJ"), &T::IDTARYFYWLASNEJ},
            {QStringLiteral("NRJAZDY"), &T::NRJAZDY},
            {QStringLiteral("FAKTURA_OBCA"), &T::FAKTURA_OBCA},
            {QStringLiteral("CZASAGREGATU"), &T::CZASAGREGATU},
            {QStringLiteral("CZASOGRZEWANIA"), &T::CZASOGRZEWANIA},
            {QStringLiteral("CIAGNIKZAKUP"), &T::CIAGNIKZAKUP},
            {QStringLiteral("AGREGATZAKUP"), &T::AGREGATZAKUP},
            {QStringLiteral("OGRZEWANIEZAKUP"), &T::OGRZEWANIEZAKUP},
            {QStringLiteral("CIAGNIKZUZYCIEREAL"), &T::CIAGNIKZUZYCIEREAL},
            {QStringLiteral("AGREGATZUZYCIEREAL"), &T::AGREGATZUZYCIEREAL},
            {QStringLiteral("OGRZEWANIEZUZYCIEREAL"), &T::OGRZEWANIEZUZYCIEREAL},
            {QStringLiteral("STAWKA"), &T::STAWKA},
            {QStringLiteral("KMPOCZATKOWE"), &T::KMPOCZATKOWE},
            {QStringLiteral("KMKONCOWE"), &T::KMKONCOWE},
            {QStringLiteral("PALIWO_STAN_POCZ"), &T::PALIWO_STAN_POCZ},
            {QStringLiteral("PALIWO_STAN_KONC"), &T::PALIWO_STAN_KONC},
            {QStringLiteral("AGREGAT_STAN_POCZ"), &T::AGREGAT_STAN_POCZ},
            {QStringLiteral("AGREGAT_STAN_KONC"), &T::AGREGAT_STAN_KONC},
            {QStringLiteral("IDVAT_PRZEWOZNIK"), &T::IDVAT_PRZEWOZNIK},
            {QStringLiteral("DATAWYSTAWIENIA_PRZEWOZNIK"), &T::DATAWYSTAWIENIA_PRZEWOZNIK},
            {QStringLiteral("KWOTA_PRZEWOZNIKA"), &T::KWOTA_PRZEWOZNIKA},
            {QStringLiteral("TRASA"), &T::TRASA},
        },
    };
    return d;
}
