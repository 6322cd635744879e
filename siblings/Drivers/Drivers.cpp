#include "Drivers.h"

#include "ListTexts.h"
#include "Nip.h"
#include "Pesel.h"
#include "PostalCode.h"

using namespace Qt::StringLiterals;

namespace {

using Register = TableRegister<TKierowcyObj>;
using Editing = TableRecordEditing<TKierowcyObj>;
using T = TKierowcyObj;

enum Group { Person, Address, Work };

} // namespace

bool Drivers::isMechanic(const TKierowcyObj &driver)
{
    return driver.GRUPA_ZASZEREGOWANIA == MechanicGroup;
}

QString Drivers::displayName(const TKierowcyObj &driver)
{
    return driver.IMIE + u' ' + driver.NAZWISKO;
}

Register::Definition Drivers::listing(Staff staff)
{
    Register::Definition d;
    d.orderBy = u"NAZWISKO, IMIE"_s;
    d.columns = {
        {{u"Nazwisko"_s, 140}, [](const T &r) { return r.NAZWISKO; }},
        {{u"Imię"_s, 110}, [](const T &r) { return r.IMIE; }},
        {{u"Miejscowość"_s, 130}, [](const T &r) { return r.MIEJSCOWSC; }},
        {{u"Telefon"_s, 120},
         [](const T &r) { return r.TEL_KOM.isEmpty() ? r.TEL_DOM : r.TEL_KOM; }},
        {{u"PESEL"_s, 100}, [](const T &r) { return r.PESEL; }},
        {{u"Stanowisko"_s, 90},
         [](const T &r) { return isMechanic(r) ? u"mechanik"_s : u"kierowca"_s; }},
        {{u"Aktywny"_s, 60}, [](const T &r) { return ListTexts::yesNo(r.NIEAKTYWNY == 0); }},
    };
    if (staff == Staff::Mechanics)
        d.listed = [](const T &r) { return isMechanic(r); };
    d.active = [](const T &r) { return r.NIEAKTYWNY == 0; };
    d.references = {
        {u"ZLECENIA_PRZYCH"_s, {u"IDKIEROWCY"_s}, u"zlecenia przychodzące"_s},
        {u"ZLECENIA_ZBIOR"_s, {u"IDKIEROWCY"_s}, u"zlecenia zbiorcze"_s},
        {u"KARTY_DR"_s, {u"IDKIEROWCA"_s}, u"karty drogowe"_s},
        {u"POJAZDY"_s, {u"DEF_KIEROWCA"_s, u"DEF_ZMIENNIK"_s},
         u"pojazdy (jako kierowca lub zmiennik domyślny)"_s},
        {u"FAKTURY_POZYCJE"_s, {u"ID_KIEROWCY"_s}, u"pozycje faktur"_s},
    };
    return d;
}

Editing::Definition Drivers::editing(Staff staff)
{
    using namespace Fields;
    Editing::Definition d;
    d.groups = {{u"Dane osobowe"_s, 0}, {u"Adres"_s, 1}, {u"Kontakt i zatrudnienie"_s, 1}};
    const std::vector<Choice> positions{{0, u"kierowca"_s}, {MechanicGroup, u"mechanik"_s}};
    d.fields = {
        {text(u"edImie"_s, u"Imię"_s, Person, 60, true), &T::IMIE},
        {text(u"edImie2"_s, u"Drugie imię"_s, Person, 60), &T::IMIE2},
        {text(u"edNazwisko"_s, u"Nazwisko"_s, Person, 60, true), &T::NAZWISKO},
        {text(u"edPesel"_s, u"PESEL"_s, Person, 11), &T::PESEL},
        {date(u"deDataUr"_s, u"Data urodzenia"_s, Person), &T::DATA_UR},
        {text(u"edMUrodz"_s, u"Miejsce urodzenia"_s, Person, 60), &T::M_URODZ},
        {text(u"edImOjca"_s, u"Imię ojca"_s, Person, 60), &T::IM_OJCA},
        {text(u"edImMatki"_s, u"Imię matki"_s, Person, 60), &T::IM_MATKI},
        {text(u"edNip"_s, u"NIP"_s, Person, 13), &T::NIP},
        {text(u"edAdres"_s, u"Ulica i numer"_s, Address, 100), &T::ADRES},
        {text(u"edKod"_s, u"Kod pocztowy"_s, Address, 6), &T::KOD},
        {text(u"edMiejscowosc"_s, u"Miejscowość"_s, Address, 60), &T::MIEJSCOWSC},
        {text(u"edPoczta"_s, u"Poczta"_s, Address, 60), &T::POCZTA},
        {text(u"edGmina"_s, u"Gmina"_s, Address, 60), &T::GMINA},
        {text(u"edPowiat"_s, u"Powiat"_s, Address, 60), &T::POWIAT},
        {text(u"edWojewodztwo"_s, u"Województwo"_s, Address, 40), &T::WOJEWODZTWO},
        {text(u"edTelKom"_s, u"Telefon komórkowy"_s, Work, 20), &T::TEL_KOM},
        {text(u"edTelDom"_s, u"Telefon domowy"_s, Work, 20), &T::TEL_DOM},
        {choice(u"cbStanowisko"_s, u"Stanowisko"_s, Work, Choices::fixed(positions)),
         &T::GRUPA_ZASZEREGOWANIA},
        {flag(u"cbAktywny"_s, u"Aktywny"_s, Work, true), &T::NIEAKTYWNY},
    };
    d.checks = {[](const T &driver, Connection &) { return check(driver); }};
    d.defaults = [staff](T &driver, Connection &) {
        if (staff == Staff::Mechanics)
            driver.GRUPA_ZASZEREGOWANIA = MechanicGroup;
    };
    // The PESEL says when the driver was born.
    d.beforeSave = [](T &driver, Connection &) {
        if (driver.DATA_UR.isNull() && !driver.PESEL.isEmpty())
            driver.DATA_UR = DateTime::fromDate(Pesel::birthDate(driver.PESEL));
    };
    return d;
}

Problem Drivers::check(const TKierowcyObj &driver)
{
    if (!driver.PESEL.isEmpty()) {
        if (const QString problem = Pesel::problem(driver.PESEL); !problem.isEmpty())
            return FieldProblem{u"edPesel"_s, problem};
        const QDate born = Pesel::birthDate(driver.PESEL);
        if (!driver.DATA_UR.isNull() && driver.DATA_UR.date() != born)
            return FieldProblem{u"deDataUr"_s,
                                u"Data urodzenia %1 nie zgadza się z numerem PESEL %2, według "
                                "którego kierowca urodził się %3."_s
                                    .arg(ListTexts::date(driver.DATA_UR), driver.PESEL,
                                         ListTexts::date(DateTime::fromDate(born)))};
    }
    if (!driver.NIP.isEmpty()) {
        if (const QString problem = Nip::problem(driver.NIP); !problem.isEmpty())
            return FieldProblem{u"edNip"_s, problem};
    }
    if (!driver.KOD.isEmpty()) {
        if (const QString problem = PostalCode::problem(driver.KOD, PostalCode::PolishMask,
                                                        u"Polska"_s);
            !problem.isEmpty())
            return FieldProblem{u"edKod"_s, problem};
    }
    return std::nullopt;
}
