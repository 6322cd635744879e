#include "Vehicles.h"

#include "Fleet.h"
#include "ListTexts.h"

using namespace Qt::StringLiterals;

namespace {

using T = TPojazdyObj;

enum Group { Vehicle, Crew, Running };

} // namespace

TableRegister<TPojazdyObj>::Definition Vehicles::listing()
{
    TableRegister<T>::Definition d;
    auto driver = std::make_shared<NameLookup>(Fleet::drivers());
    auto trailer = std::make_shared<NameLookup>(Fleet::trailers());
    d.orderBy = u"NR_REJ"_s;
    d.lookups = {driver, trailer};
    using Kind = RegisterModel::ColumnKind;
    d.columns = {
        {{u"Nr rej."_s, 90}, [](const T &r) { return r.NR_REJ; }},
        {{u"Marka i typ"_s, 150}, [](const T &r) { return r.TYP; }},
        {{u"Ładowność (kg)"_s, 95, Kind::Number},
         [](const T &r) { return ListTexts::number(r.LADOWNOSC); }},
        {{u"Rok prod."_s, 65, Kind::Number},
         [](const T &r) { return ListTexts::number(r.ROK_PROD); }},
        {{u"Naczepa"_s, 90}, [trailer](const T &r) { return (*trailer)(r.DEF_NACZEPA); }},
        {{u"Kierowca"_s, 150}, [driver](const T &r) { return (*driver)(r.DEF_KIEROWCA); }},
        {{u"Paliwo"_s, 60}, [](const T &r) { return r.RODZAJ_PALIWA; }},
        {{u"Norma (l/100 km)"_s, 105, Kind::Number},
         [](const T &r) { return ListTexts::amount(r.NORMA_PALIWA, u"##0.0"); }},
    };
    d.references = {
        {u"ZLECENIA_PRZYCH"_s, {u"IDPOJAZDU"_s}, u"zlecenia przychodzące"_s},
        {u"ZLECENIA_ZBIOR"_s, {u"IDPOJAZDU"_s}, u"zlecenia zbiorcze"_s},
        {u"KARTY_DR"_s, {u"IDPOJAZD"_s}, u"karty drogowe"_s},
        {u"FAKTURY_POZYCJE"_s, {u"ID_POJAZDU"_s}, u"pozycje faktur"_s},
    };
    return d;
}

TableRecordEditing<TPojazdyObj>::Definition Vehicles::editing()
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Pojazd"_s, 0}, {u"Obsada i naczepa"_s, 1}, {u"Eksploatacja"_s, 1}};
    d.fields = {
        {text(u"edNrRej"_s, u"Numer rejestracyjny"_s, Vehicle, 20, true), &T::NR_REJ},
        {text(u"edTyp"_s, u"Marka i typ"_s, Vehicle, 60), &T::TYP},
        {text(u"edDowodRej"_s, u"Dowód rejestracyjny"_s, Vehicle, 30), &T::DOWOD_REJ},
        {text(u"edNrEwid"_s, u"Numer ewidencyjny"_s, Vehicle, 30), &T::NR_EWID},
        {text(u"edNrPodw"_s, u"Numer nadwozia (VIN)"_s, Vehicle, 17), &T::NR_PODW},
        {integer(u"seRokProd"_s, u"Rok produkcji"_s, Vehicle, 0, 2100), &T::ROK_PROD},
        {text(u"edPrzeznaczenie"_s, u"Przeznaczenie"_s, Vehicle, 60), &T::PRZEZNACZENIE},
        {integer(u"seMasaWl"_s, u"Masa własna (kg)"_s, Vehicle, 0, 60000), &T::MASA_WL},
        {integer(u"seLadownosc"_s, u"Ładowność (kg)"_s, Vehicle, 0, 60000), &T::LADOWNOSC},
        {text(u"edOpis"_s, u"Opis"_s, Vehicle, 255), &T::OPIS},
        {choice(u"cbDefKierowca"_s, u"Kierowca domyślny"_s, Crew, Fleet::drivers(), true),
         &T::DEF_KIEROWCA},
        {choice(u"cbDefZmiennik"_s, u"Zmiennik domyślny"_s, Crew, Fleet::drivers(), true),
         &T::DEF_ZMIENNIK},
        {choice(u"cbDefNaczepa"_s, u"Naczepa domyślna"_s, Crew, Fleet::trailers(), true),
         &T::DEF_NACZEPA},
        {text(u"edRodzajPaliwa"_s, u"Rodzaj paliwa"_s, Running, 20), &T::RODZAJ_PALIWA},
        {decimal(u"seNormaPaliwa"_s, u"Norma paliwa (l/100 km)"_s, Running, 999.99),
         &T::NORMA_PALIWA},
        {integer(u"seLicznik"_s, u"Stan licznika (km)"_s, Running, 0, 9999999), &T::LICZNIK},
        {decimal(u"seStanPaliwa"_s, u"Stan paliwa (l)"_s, Running, 9999.99), &T::STAN_PALIWA},
    };
    d.checks = {check};
    d.beforeSave = [](T &vehicle, Connection &) { vehicle.NR_REJ = vehicle.NR_REJ.toUpper(); };
    return d;
}

Problem Vehicles::check(const TPojazdyObj &vehicle, Connection &connection)
{
    if (Problem problem = Fleet::registrationOrYearProblem(connection, u"POJAZDY"_s,
                                                           u"ID_POJAZDU"_s, vehicle.ID_POJAZDU,
                                                           vehicle.NR_REJ, vehicle.ROK_PROD))
        return problem;
    if (vehicle.DEF_KIEROWCA != 0 && vehicle.DEF_KIEROWCA == vehicle.DEF_ZMIENNIK)
        return FieldProblem{u"cbDefZmiennik"_s,
                            u"Zmiennikiem nie może być sam kierowca domyślny: wybierz innego "
                            "zmiennika albo pozostaw pole puste."_s};
    return std::nullopt;
}
