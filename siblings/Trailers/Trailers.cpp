#include "Trailers.h"

#include "Fleet.h"
#include "ListTexts.h"

using namespace Qt::StringLiterals;

namespace {

using T = TNaczepyObj;

enum Group { Trailer, Size };

} // namespace

TableRegister<TNaczepyObj>::Definition Trailers::listing()
{
    TableRegister<T>::Definition d;
    d.orderBy = u"NR_REJ"_s;
    using Kind = RegisterModel::ColumnKind;
    d.columns = {
        {{u"Nr rej."_s, 90}, [](const T &r) { return r.NR_REJ; }},
        {{u"Rodzaj i typ"_s, 150}, [](const T &r) { return r.TYP; }},
        {{u"Palety"_s, 60, Kind::Number},
         [](const T &r) { return ListTexts::number(r.LADOWNOSC); }},
        {{u"Masa (kg)"_s, 80, Kind::Number}, [](const T &r) { return ListTexts::number(r.MASA); }},
        {{u"Długość (m)"_s, 80, Kind::Number},
         [](const T &r) { return ListTexts::amount(r.DLUGOSC); }},
        {{u"Rok prod."_s, 65, Kind::Number},
         [](const T &r) { return ListTexts::number(r.ROK_PROD); }},
        {{u"Opis"_s, 200}, [](const T &r) { return r.OPIS; }},
    };
    d.references = {
        {u"POJAZDY"_s, {u"DEF_NACZEPA"_s}, u"pojazdy (jako naczepa domyślna)"_s},
        {u"KARTY_DR"_s, {u"IDNACZEPA"_s}, u"karty drogowe"_s},
    };
    return d;
}

TableRecordEditing<TNaczepyObj>::Definition Trailers::editing()
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Naczepa"_s, 0}, {u"Wymiary i ładowność"_s, 1}};
    d.fields = {
        {text(u"edNrRej"_s, u"Numer rejestracyjny"_s, Trailer, 20, true), &T::NR_REJ},
        {text(u"edTyp"_s, u"Rodzaj i typ"_s, Trailer, 60), &T::TYP},
        {text(u"edDowodRej"_s, u"Dowód rejestracyjny"_s, Trailer, 30), &T::DOWOD_REJ},
        {text(u"edNrEwid"_s, u"Numer ewidencyjny"_s, Trailer, 30), &T::NR_EWID},
        {text(u"edNrPodwozia"_s, u"Numer podwozia (VIN)"_s, Trailer, 17), &T::NR_PODWOZIA},
        {integer(u"seRokProd"_s, u"Rok produkcji"_s, Trailer, 0, 2100), &T::ROK_PROD},
        {text(u"edPrzeznaczenie"_s, u"Przeznaczenie"_s, Trailer, 60), &T::PRZEZNACZENIE},
        {text(u"edOpis"_s, u"Opis"_s, Trailer, 255), &T::OPIS},
        {integer(u"seLadownosc"_s, u"Ładowność (palety)"_s, Size, 0, 99), &T::LADOWNOSC},
        {integer(u"seMasa"_s, u"Masa własna (kg)"_s, Size, 0, 60000), &T::MASA},
        {decimal(u"seDlugosc"_s, u"Długość (m)"_s, Size, 99.99), &T::DLUGOSC},
        {decimal(u"seSzerokosc"_s, u"Szerokość (m)"_s, Size, 9.99), &T::SZEROKOSC},
        {decimal(u"seWysokosc"_s, u"Wysokość (m)"_s, Size, 9.99), &T::WYSOKOSC},
        {integer(u"seIlOsi"_s, u"Liczba osi"_s, Size, 0, 9), &T::IL_OSI},
        {text(u"edOpony"_s, u"Opony"_s, Size, 60), &T::OPONY},
    };
    d.checks = {[](const T &trailer, Connection &connection) {
        return Fleet::registrationOrYearProblem(connection, u"NACZEPY"_s, u"ID_NACZEPY"_s,
                                                trailer.ID_NACZEPY, trailer.NR_REJ,
                                                trailer.ROK_PROD);
    }};
    d.beforeSave = [](T &trailer, Connection &) { trailer.NR_REJ = trailer.NR_REJ.toUpper(); };
    return d;
}
