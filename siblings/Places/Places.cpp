#include "Places.h"

#include "Countries.h"

using namespace Qt::StringLiterals;

namespace {

using T = TMiejscaObj;

} // namespace

TableRegister<TMiejscaObj>::Definition Places::listing()
{
    TableRegister<T>::Definition d;
    auto country = std::make_shared<NameLookup>(Countries::choices());
    d.orderBy = u"NAZWA"_s;
    d.lookups = {country};
    d.columns = {
        {{u"Nazwa"_s, 220}, [](const T &r) { return r.NAZWA; }},
        {{u"Miejscowość"_s, 130}, [](const T &r) { return r.MIASTO; }},
        {{u"Kod"_s, 70}, [](const T &r) { return r.KOD; }},
        {{u"Adres"_s, 180}, [](const T &r) { return r.ADRES; }},
        {{u"Kraj"_s, 100}, [country](const T &r) { return (*country)(r.ID_KRAJU); }},
        {{u"Uwagi"_s, 150}, [](const T &r) { return r.UWAGI; }},
    };
    d.references = {
        {u"MIEJSCA_ZALAD_ROZLAD"_s, {u"ID_MIEJSCA"_s},
         u"miejsca załadunku i rozładunku zleceń"_s},
        {u"ZLECENIA_ZBIOR"_s, {u"IDMIEJSCAZALAD"_s, u"IDMIEJSCAROZLAD"_s},
         u"zlecenia zbiorcze"_s},
    };
    return d;
}

TableRecordEditing<TMiejscaObj>::Definition Places::editing()
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Miejsce"_s, 0}};
    d.fields = {
        {text(u"edNazwa"_s, u"Nazwa"_s, 0, 100, true), &T::NAZWA},
        {text(u"edAdres"_s, u"Ulica i numer"_s, 0, 100), &T::ADRES},
        {text(u"edKod"_s, u"Kod pocztowy"_s, 0, 12), &T::KOD},
        {text(u"edMiasto"_s, u"Miejscowość"_s, 0, 60, true), &T::MIASTO},
        {choice(u"cbKraj"_s, u"Kraj"_s, 0, Countries::choices(), true), &T::ID_KRAJU},
        {text(u"edUwagi"_s, u"Uwagi"_s, 0, 255), &T::UWAGI},
    };
    d.checks = {[](const T &place, Connection &connection) {
        return Countries::postalCodeField(connection, place.ID_KRAJU, place.KOD);
    }};
    d.defaults = [](T &place, Connection &connection) {
        place.ID_KRAJU = Countries::polandKey(connection);
    };
    return d;
}
