#include "RoadCards.h"

#include "Fleet.h"
#include "ListTexts.h"
#include "RecordReader.h"
#include "Statement.h"
#include "TKierowcyObj.h"
#include "TNaczepyObj.h"
#include "TPojazdyObj.h"
#include "TZlecenia_przychObj.h"

using namespace Qt::StringLiterals;

namespace {

using T = TKarty_drObj;

enum Group { Card, Meter, Fuel };

int keyByRegistration(Connection &connection, const QString &table, const QString &key,
                      const QString &registration)
{
    if (registration.trimmed().isEmpty())
        return 0;
    Statement st(connection);
    st.add(u"SELECT MIN("_s + key + u") FROM "_s + table);
    st.add(u"WHERE UPPER(TRIM(NR_REJ)) = UPPER(CAST(:aNR_REJ AS VARCHAR(255)))"_s);
    st.bind(u"aNR_REJ"_s, registration.trimmed());
    st.exec();
    return st.integer(0);
}

// The texts a card keeps beside its keys, as the lists of cards show them.
void nameCrew(T &card, Connection &connection)
{
    const TKierowcyObj driver = recordByKey<TKierowcyObj>(connection, card.IDKIEROWCA);
    card.KIEROWCA = driver.ID_KIEROWCA == 0
        ? QString()
        : QString(driver.IMIE + u' ' + driver.NAZWISKO).trimmed();
    card.REJ_POJAZD = recordByKey<TPojazdyObj>(connection, card.IDPOJAZD).NR_REJ;
    card.REJ_NACZEPA = recordByKey<TNaczepyObj>(connection, card.IDNACZEPA).NR_REJ;
}

QString kilometres(int value)
{
    return ListTexts::amount(value, u"#,##0");
}

} // namespace

TableRegister<TKarty_drObj>::Definition RoadCards::listing()
{
    TableRegister<T>::Definition d;
    d.orderBy = u"Z_DNIA DESC, NUMER DESC"_s;
    using Kind = RegisterModel::ColumnKind;
    d.columns = {
        {{u"Numer"_s, 60, Kind::Number},
         [](const T &r) { return QString::number(r.NUMER).rightJustified(5, u'0'); }},
        {{u"Z dnia"_s, 85, Kind::Date}, [](const T &r) { return ListTexts::date(r.Z_DNIA); }},
        {{u"Kierowca"_s, 150}, [](const T &r) { return r.KIEROWCA; }},
        {{u"Pojazd"_s, 85}, [](const T &r) { return r.REJ_POJAZD; }},
        {{u"Naczepa"_s, 85}, [](const T &r) { return r.REJ_NACZEPA; }},
        {{u"Nr zlecenia"_s, 80, Kind::Number},
         [](const T &r) { return ListTexts::number(r.NRZLECENIA); }},
        {{u"Licznik pocz."_s, 90, Kind::Number},
         [](const T &r) { return ListTexts::number(r.LICZNIK_POCZ); }},
        {{u"Licznik końc."_s, 90, Kind::Number},
         [](const T &r) { return ListTexts::number(r.LICZNIK_KONCOWY); }},
        {{u"Km"_s, 60, Kind::Number}, [](const T &r) { return ListTexts::number(r.KM); }},
    };
    d.references = {
        {u"ZLECENIA_PRZYCH"_s, {u"IDKARTYDR"_s}, u"zlecenia przychodzące"_s},
        {u"ZLECENIA_SPED"_s, {u"IDKARTY"_s}, u"zlecenia spedycyjne"_s},
    };
    return d;
}

TableRecordEditing<TKarty_drObj>::Definition RoadCards::editing(int orderKey)
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Karta"_s, 0}, {u"Licznik i kilometry"_s, 1}, {u"Paliwo"_s, 1}};
    d.fields = {
        {integer(u"seNumer"_s, u"Numer karty"_s, Card, 1, 99999), &T::NUMER},
        {date(u"deZDnia"_s, u"Z dnia"_s, Card, true), &T::Z_DNIA},
        {choice(u"cbPojazd"_s, u"Pojazd"_s, Card, Fleet::vehicles(), true, true), &T::IDPOJAZD},
        {choice(u"cbKierowca"_s, u"Kierowca"_s, Card, Fleet::drivers(), true, true),
         &T::IDKIEROWCA},
        {choice(u"cbNaczepa"_s, u"Naczepa"_s, Card, Fleet::trailers(), true), &T::IDNACZEPA},
        {integer(u"seNrZlecenia"_s, u"Numer zlecenia"_s, Card, 0, 99999999), &T::NRZLECENIA},
        {text(u"edCmr"_s, u"Numer CMR"_s, Card, 60), &T::CMR},
        {text(u"edUwagi"_s, u"Uwagi"_s, Card, 255), &T::UWAGI},
        {integer(u"seLicznikPocz"_s, u"Licznik na początku (km)"_s, Meter, 0, 9999999),
         &T::LICZNIK_POCZ},
        {integer(u"seLicznikKoncowy"_s, u"Licznik na końcu (km)"_s, Meter, 0, 9999999),
         &T::LICZNIK_KONCOWY},
        {integer(u"seKmLadowne"_s, u"Kilometry ładowne"_s, Meter, 0, 99999), &T::KM_LADOWNE},
        {integer(u"seKmPuste"_s, u"Kilometry puste"_s, Meter, 0, 99999), &T::KM_PUSTE},
        {decimal(u"seStanPocz"_s, u"Paliwo na początku (l)"_s, Fuel, 9999.99), &T::STAN_POCZ},
        {decimal(u"sePaliwoZakupione"_s, u"Paliwo zatankowane (l)"_s, Fuel, 9999.99),
         &T::PALIWO_ZAKUPIONE},
        {decimal(u"seStanKoncowy"_s, u"Paliwo na końcu (l)"_s, Fuel, 9999.99), &T::STAN_KONCOWY},
    };
    d.checks = {check};
    d.defaults = [orderKey](T &card, Connection &connection) {
        card.Z_DNIA = DateTime::today();
        card.NUMER = nextNumber(connection, card.Z_DNIA.date().year());
        if (orderKey != 0)
            fillFromOrder(card, recordByKey<TZlecenia_przychObj>(connection, orderKey), connection);
    };
    if (orderKey != 0) {
        d.afterSave = [orderKey](const T &card, Connection &connection) {
            Statement st(connection);
            st.add(u"UPDATE ZLECENIA_PRZYCH SET IDKARTYDR = :aIDKARTYDR"_s);
            st.add(u"WHERE ID_ZLECENIA_PRZYCH = :aID_ZLECENIA_PRZYCH"_s);
            st.bind(u"aIDKARTYDR"_s, card.ID_KARTY_DR);
            st.bind(u"aID_ZLECENIA_PRZYCH"_s, orderKey);
            st.exec();
        };
    }
    d.beforeSave = [](T &card, Connection &connection) {
        nameCrew(card, connection);
        card.LICZNIK_ILOSC = driven(card);
        card.KM = card.LICZNIK_ILOSC;
        card.ZUZYCIE = fuelUsed(card);
        card.PALIWO_ZAKUPIONE_RAZEM = card.PALIWO_ZAKUPIONE;
    };
    return d;
}

int RoadCards::driven(const TKarty_drObj &card)
{
    return card.LICZNIK_KONCOWY == 0 ? 0 : card.LICZNIK_KONCOWY - card.LICZNIK_POCZ;
}

double RoadCards::fuelUsed(const TKarty_drObj &card)
{
    if (card.LICZNIK_KONCOWY == 0)
        return 0.0;
    return card.STAN_POCZ + card.PALIWO_ZAKUPIONE - card.STAN_KONCOWY;
}

Problem RoadCards::check(const TKarty_drObj &card, Connection &connection)
{
    if (card.LICZNIK_KONCOWY != 0 && card.LICZNIK_KONCOWY < card.LICZNIK_POCZ)
        return FieldProblem{u"seLicznikKoncowy"_s,
                            u"Licznik na końcu (%1 km) wskazuje mniej niż na początku (%2 km)."_s
                                .arg(kilometres(card.LICZNIK_KONCOWY),
                                     kilometres(card.LICZNIK_POCZ))};
    const int declared = card.KM_LADOWNE + card.KM_PUSTE;
    if (card.LICZNIK_KONCOWY != 0 && declared > driven(card))
        return FieldProblem{u"seKmLadowne"_s,
                            u"Kilometry ładowne i puste razem (%1 km) przekraczają przejechane "
                            "według licznika (%2 km)."_s
                                .arg(kilometres(declared), kilometres(driven(card)))};
    const double available = card.STAN_POCZ + card.PALIWO_ZAKUPIONE;
    if (card.STAN_KONCOWY > available + 0.005)
        return FieldProblem{u"seStanKoncowy"_s,
                            u"Na końcu nie może zostać więcej paliwa (%1 l) niż było na początku "
                            "razem z zatankowanym (%2 l)."_s
                                .arg(ListTexts::amount(card.STAN_KONCOWY),
                                     ListTexts::amount(available))};
    Statement st(connection);
    st.add(u"SELECT COUNT(*) FROM KARTY_DR WHERE NUMER = :aNUMER"_s);
    st.add(u"AND EXTRACT(YEAR FROM Z_DNIA) = :aRok AND ID_KARTY_DR <> :aID_KARTY_DR"_s);
    st.bind(u"aNUMER"_s, card.NUMER);
    st.bind(u"aRok"_s, card.Z_DNIA.date().year());
    st.bind(u"aID_KARTY_DR"_s, card.ID_KARTY_DR);
    st.exec();
    if (st.integer(0) > 0)
        return FieldProblem{u"seNumer"_s,
                            u"Karta drogowa numer %1 z roku %2 już istnieje: nadaj inny numer."_s
                                .arg(card.NUMER)
                                .arg(card.Z_DNIA.date().year())};
    return std::nullopt;
}

int RoadCards::nextNumber(Connection &connection, int year)
{
    Statement st(connection);
    st.add(u"SELECT MAX(NUMER) FROM KARTY_DR WHERE EXTRACT(YEAR FROM Z_DNIA) = :aRok"_s);
    st.bind(u"aRok"_s, year);
    st.exec();
    return st.integer(0) + 1;
}

void RoadCards::takeOverVehicle(TKarty_drObj &card, const TPojazdyObj &vehicle)
{
    card.IDPOJAZD = vehicle.ID_POJAZDU;
    if (card.IDKIEROWCA == 0)
        card.IDKIEROWCA = vehicle.DEF_KIEROWCA;
    if (card.IDNACZEPA == 0)
        card.IDNACZEPA = vehicle.DEF_NACZEPA;
    if (card.LICZNIK_POCZ == 0)
        card.LICZNIK_POCZ = vehicle.LICZNIK;
    if (card.STAN_POCZ == 0.0)
        card.STAN_POCZ = vehicle.STAN_PALIWA;
}

void RoadCards::fillFromOrder(TKarty_drObj &card, const TZlecenia_przychObj &order,
                              Connection &connection)
{
    card.IDZLECENIA = order.ID_ZLECENIA_PRZYCH;
    card.NRZLECENIA = order.NUMER;
    if (!order.DATA.isNull()) {
        card.Z_DNIA = DateTime::fromDate(order.DATA.date());
        card.NUMER = nextNumber(connection, order.DATA.date().year());
    }
    card.IDKIEROWCA = order.IDKIEROWCY;
    card.IDNACZEPA = keyByRegistration(connection, u"NACZEPY"_s, u"ID_NACZEPY"_s, order.NACZEPA);
    card.KM_LADOWNE = order.KM_LADOWNE;
    card.PALETY_RAZEM = order.PALETYILOSC;
    const int vehicle = order.IDPOJAZDU != 0
        ? order.IDPOJAZDU
        : keyByRegistration(connection, u"POJAZDY"_s, u"ID_POJAZDU"_s, order.POJAZD);
    if (vehicle != 0)
        takeOverVehicle(card, recordByKey<TPojazdyObj>(connection, vehicle));
}
