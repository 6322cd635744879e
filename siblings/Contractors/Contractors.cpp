#include "Contractors.h"

#include "BankAccount.h"
#include "Configuration.h"
#include "ContractorRoles.h"
#include "Countries.h"
#include "ListTexts.h"
#include "Nip.h"
#include "Statement.h"

using namespace Qt::StringLiterals;

namespace {

using T = TKontrahenciObj;

enum Group { Company, Address, Payment, Contact };

constexpr int DefaultPaymentDays = 14;

QString roleName(int role)
{
    switch (role) {
    case ContractorRoles::Client: return u"zleceniodawca"_s;
    case ContractorRoles::Carrier: return u"przewoźnik"_s;
    default: return u"zleceniodawca i przewoźnik"_s;
    }
}

std::vector<Choice> roles()
{
    std::vector<Choice> result;
    for (int role : {ContractorRoles::Both, ContractorRoles::Client, ContractorRoles::Carrier})
        result.push_back({role, roleName(role)});
    return result;
}

bool shortNameTaken(Connection &connection, const T &contractor)
{
    Statement st(connection);
    st.add(u"SELECT COUNT(*) FROM KONTRAHENCI"_s);
    st.add(u"WHERE UPPER(TRIM(SKROT)) = UPPER(CAST(:aSKROT AS VARCHAR(255)))"_s);
    st.add(u"AND ID_KONTRAHENTA <> :aID_KONTRAHENTA"_s);
    st.bind(u"aSKROT"_s, contractor.SKROT.trimmed());
    st.bind(u"aID_KONTRAHENTA"_s, contractor.ID_KONTRAHENTA);
    st.exec();
    return st.integer(0) > 0;
}

} // namespace

TableRegister<TKontrahenciObj>::Definition Contractors::listing()
{
    TableRegister<T>::Definition d;
    d.orderBy = u"SKROT"_s;
    d.columns = {
        {{u"Skrót"_s, 130}, [](const T &r) { return r.SKROT; }},
        {{u"Nazwa"_s, 230}, [](const T &r) { return r.NAZWA; }},
        {{u"NIP"_s, 110}, [](const T &r) { return r.NIP; }},
        {{u"Miejscowość"_s, 120}, [](const T &r) { return r.MIEJSCOWOSC; }},
        {{u"Telefon"_s, 110}, [](const T &r) { return r.TELEFON; }},
        {{u"Rola"_s, 160}, [](const T &r) { return roleName(r.KIERUNEK); }},
        {{u"Aktywny"_s, 60}, [](const T &r) { return ListTexts::yesNo(r.AKTYWNY != 0); }},
    };
    d.active = [](const T &r) { return r.AKTYWNY != 0; };
    d.references = {
        {u"ZLECENIA_PRZYCH"_s, {u"IDKONTRAHENTA"_s, u"IDPRZEWOZNIK"_s, u"IDFAKTUROBIORCY"_s},
         u"zlecenia przychodzące"_s},
        {u"ZLECENIA_ZBIOR"_s, {u"IDKONTRAHENTA"_s, u"IDPRZEWOZNIK"_s}, u"zlecenia zbiorcze"_s},
        {u"ZLECENIA_SPED"_s,
         {u"ID_ZLECENIODAWCY"_s, u"ID_WYKONAWCY"_s, u"ID_IMPORTER"_s, u"ID_EXPORTER"_s},
         u"zlecenia spedycyjne"_s},
        {u"FAKTURY"_s, {u"ID_KONTRAHENTA"_s, u"PLATNIK"_s}, u"faktury"_s},
        {u"CENNIKI_KRAJ_KONTRAHENCI"_s, {u"IDKONTRAHENT"_s}, u"cenniki krajowe"_s},
    };
    d.refusal = ownCompanyRefusal;
    return d;
}

TableRecordEditing<TKontrahenciObj>::Definition Contractors::editing()
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Firma"_s, 0}, {u"Adres"_s, 1}, {u"Płatności"_s, 0}, {u"Kontakt"_s, 1}};
    const ChoiceSource payments = Choices::fromQuery(
        u"SELECT ID_RODZ_PLATNOSCI, OPIS FROM RODZAJE_PLATNOSCI ORDER BY ID_RODZ_PLATNOSCI"_s);
    d.fields = {
        {text(u"edSkrot"_s, u"Skrót"_s, Company, 60, true), &T::SKROT},
        {text(u"edNazwa"_s, u"Pełna nazwa"_s, Company, 160, true), &T::NAZWA},
        {text(u"edNip"_s, u"NIP"_s, Company, 30), &T::NIP},
        {text(u"edRegon"_s, u"REGON"_s, Company, 14), &T::REGON},
        {choice(u"cbRola"_s, u"Rola"_s, Company, Choices::fixed(roles())), &T::KIERUNEK},
        {flag(u"cbAktywny"_s, u"Aktywny"_s, Company), &T::AKTYWNY},
        {text(u"edAdres"_s, u"Ulica i numer"_s, Address, 100), &T::ADRES},
        {text(u"edKod"_s, u"Kod pocztowy"_s, Address, 12), &T::KOD},
        {text(u"edMiejscowosc"_s, u"Miejscowość"_s, Address, 60), &T::MIEJSCOWOSC},
        {text(u"edWojewodztwo"_s, u"Województwo"_s, Address, 40), &T::WOJEWODZTWO},
        {choice(u"cbKraj"_s, u"Kraj"_s, Address, Countries::choices(), true), &T::ID_KRAJU},
        {choice(u"cbRodzajPlatnosci"_s, u"Forma płatności"_s, Payment, payments, true),
         &T::ID_RODZ_PLATNOSCI},
        {integer(u"sePlatnoscDni"_s, u"Termin płatności (dni)"_s, Payment, 0, 365),
         &T::PLATNOSC_DNI},
        {text(u"edRachunek"_s, u"Rachunek bankowy"_s, Payment, 40), &T::POLE1},
        {text(u"edTelefon"_s, u"Telefon"_s, Contact, 40), &T::TELEFON},
        {text(u"edFax"_s, u"Faks"_s, Contact, 40), &T::FAX},
        {text(u"edEmail"_s, u"E-mail"_s, Contact, 80), &T::EMAIL},
        {text(u"edWww"_s, u"Strona www"_s, Contact, 80), &T::WWW},
        {text(u"edOsoba"_s, u"Osoba kontaktowa"_s, Contact, 60), &T::OSOBA},
        {text(u"edUwagi"_s, u"Uwagi"_s, Contact, 255), &T::UWAGI},
    };
    d.checks = {check};
    d.defaults = [](T &contractor, Connection &connection) {
        contractor.AKTYWNY = 1;
        contractor.DATA_WPISU = DateTime::today();
        contractor.ID_KRAJU = Countries::polandKey(connection);
        contractor.PLATNOSC_DNI = DefaultPaymentDays;
        contractor.ID_WALUTY = Configuration(&connection).GetConfigInt(u"IDWalutyKrajowej"_s);
    };
    return d;
}

Problem Contractors::check(const TKontrahenciObj &contractor, Connection &connection)
{
    if (shortNameTaken(connection, contractor))
        return FieldProblem{u"edSkrot"_s,
                            u"Skrót %1 ma już inny kontrahent. Skrót odróżnia kontrahentów na "
                            "listach zleceń: nadaj inny."_s.arg(contractor.SKROT)};
    const bool domestic = contractor.ID_KRAJU == 0
        || contractor.ID_KRAJU == Countries::polandKey(connection);
    // A foreign contractor's tax number follows its own country's rules.
    if (domestic && !contractor.NIP.isEmpty()) {
        if (const QString problem = Nip::problem(contractor.NIP); !problem.isEmpty())
            return FieldProblem{u"edNip"_s, problem};
    }
    if (Problem code = Countries::postalCodeField(connection, contractor.ID_KRAJU, contractor.KOD))
        return code;
    if (!contractor.POLE1.isEmpty()) {
        if (const QString problem = BankAccount::problem(contractor.POLE1); !problem.isEmpty())
            return FieldProblem{u"edRachunek"_s, problem};
    }
    return std::nullopt;
}

QString Contractors::ownCompanyRefusal(Connection &connection, int key)
{
    if (key == 0 || Configuration(&connection).GetConfigInt(u"IDWłaściciela"_s) != key)
        return QString();
    return u"Nie można usunąć tego kontrahenta: to firma własna (ustawienie IDWłaściciela), "
           "wykonawca zleceń wożonych własnymi pojazdami. Nic nie zostało usunięte."_s;
}
