#include "Cities.h"

#include "Countries.h"

using namespace Qt::StringLiterals;

namespace {

using T = TMiastaObj;

} // namespace

TableRegister<TMiastaObj>::Definition Cities::listing()
{
    TableRegister<T>::Definition d;
    auto country = std::make_shared<NameLookup>(Countries::choices());
    d.orderBy = u"NAZWA"_s;
    d.lookups = {country};
    d.columns = {
        {{u"Nazwa"_s, 200}, [](const T &r) { return r.NAZWA; }},
        {{u"Kod"_s, 80}, [](const T &r) { return r.KOD; }},
        {{u"Kraj"_s, 140}, [country](const T &r) { return (*country)(r.IDKRAJU); }},
    };
    d.references = {
        {u"ZLECENIA_PRZYCH"_s,
         {u"IDMIASTO_OD"_s, u"IDMIASTO_VIA"_s, u"IDMIASTO_DO"_s, u"IDMIASTO"_s,
          u"IDMIASTAZALADUNKU"_s},
         u"zlecenia przychodzące"_s},
        {u"ODLEGLOSCI"_s, {u"IDMIASTAOD"_s, u"IDMIASTAVIA"_s, u"IDMIASTADO"_s},
         u"odległości między miastami"_s},
    };
    return d;
}

TableRecordEditing<TMiastaObj>::Definition Cities::editing()
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Miasto"_s, 0}};
    d.fields = {
        {text(u"edNazwa"_s, u"Nazwa"_s, 0, 60, true), &T::NAZWA},
        {text(u"edKod"_s, u"Kod pocztowy"_s, 0, 12), &T::KOD},
        {choice(u"cbKraj"_s, u"Kraj"_s, 0, Countries::choices(), true), &T::IDKRAJU},
    };
    d.checks = {[](const T &city, Connection &connection) {
        return Countries::postalCodeField(connection, city.IDKRAJU, city.KOD);
    }};
    d.defaults = [](T &city, Connection &connection) {
        city.IDKRAJU = Countries::polandKey(connection);
    };
    return d;
}
