// The demo company as the registers of the sibling modules show it: the
// drivers' identity numbers and addresses, two mechanics, the roles of
// clients and carriers, warehouses among the places, trailers' sizes,
// finished trips on the older road cards and every user's reminders.
#include "DemoSeeder.h"

#include "ContractorRoles.h"
#include "DemoCatalog.h"
#include "Statement.h"
#include "TTerminyObj.h"
#include "TableObjects.h"

#include <array>
#include <cmath>

using namespace DemoCatalog;

namespace {

// A PESEL as the registry issues it to a man born that day (odd serial).
QString peselOf(QDate born, int serial)
{
    const int month = born.month() + (born.year() >= 2000 ? 20 : 0);
    const QString digits = QStringLiteral("%1%2%3%4")
                               .arg(born.year() % 100, 2, 10, QLatin1Char('0'))
                               .arg(month, 2, 10, QLatin1Char('0'))
                               .arg(born.day(), 2, 10, QLatin1Char('0'))
                               .arg(serial % 10000, 4, 10, QLatin1Char('0'));
    static constexpr std::array<int, 10> weights{1, 3, 7, 9, 1, 3, 7, 9, 1, 3};
    int sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i)
        sum += weights[i] * digits[qsizetype(i)].digitValue();
    return digits + QChar(u'0' + (10 - sum % 10) % 10);
}

struct Reminder
{
    int day;   // from today
    const char *time;
    const char *text;
    int done;
};

constexpr std::array<Reminder, 6> Reminders{{
    {-5, "08:00", "Wysłać klientom faktury za poprzedni tydzień", 1},
    {-2, "10:00", "Zadzwonić do AGROMAX w sprawie zwrotu palet", 0},
    {0, "09:00", "Potwierdzić awizację rozładunku w Gdyni", 0},
    {0, "", "Przegląd techniczny EL 4522K: umówić stację diagnostyczną", 0},
    {1, "14:30", "Odebrać od kierowców listy CMR z ostatniego tygodnia", 0},
    {7, "", "Ubezpieczenie OC przewoźnika: odnowić polisę", 0},
}};

} // namespace

void DemoSeeder::seedSiblingRegisters()
{
    TKierowcyObj drivers(m_connection);
    for (std::size_t i = 0; i < m_driverKeys.size(); ++i) {
        TKierowcyObj driver = drivers.SelectById(m_driverKeys[i]);
        driver.PESEL = peselOf(driver.DATA_UR.date(), 1001 + 2 * int(i));
        driver.ADRES = QStringLiteral("ul. Piotrkowska %1").arg(20 + 7 * int(i));
        driver.POCZTA = QStringLiteral("Łódź");
        driver.WOJEWODZTWO = QStringLiteral("łódzkie");
        driver.Update();
    }
    TKierowcyObj mechanic(m_connection);
    for (const auto &[first, surname, phone] :
         {std::tuple{"Zbigniew", "Mazur", "+48 601 220 310"},
          std::tuple{"Henryk", "Krawczyk", "+48 601 220 311"}}) {
        mechanic.IMIE = QString::fromUtf8(first);
        mechanic.NAZWISKO = QString::fromUtf8(surname);
        mechanic.TEL_KOM = QString::fromUtf8(phone);
        mechanic.MIEJSCOWSC = QStringLiteral("Łódź");
        mechanic.KOD = QStringLiteral("90-001");
        mechanic.GRUPA_ZASZEREGOWANIA = 1;
        mechanic.Insert();
    }

    const auto setRole = [&](const std::vector<int> &keys, int role) {
        Statement st(m_connection);
        st.add(QStringLiteral("UPDATE KONTRAHENCI SET KIERUNEK = :aKIERUNEK"));
        st.add(QStringLiteral("WHERE ID_KONTRAHENTA = :aID_KONTRAHENTA"));
        for (int key : keys) {
            st.bind(QStringLiteral("aKIERUNEK"), role);
            st.bind(QStringLiteral("aID_KONTRAHENTA"), key);
            st.exec();
        }
    };
    setRole(m_clientKeys, ContractorRoles::Client);
    setRole(m_carrierKeys, ContractorRoles::Carrier);

    TMiejscaObj place(m_connection);
    for (const auto &[name, street, city, postcode] :
         {std::tuple{"Centrum Dystrybucyjne Stryków", "ul. Logistyczna 2", "Stryków", "95-010"},
          std::tuple{"Terminal Bałtycki, nabrzeże Holenderskie", "ul. Kontenerowa 7", "Gdynia",
                     "81-061"},
          std::tuple{"Magazyn Centralny Błonie", "ul. Fabryczna 11", "Błonie", "05-870"},
          std::tuple{"Hala Targowa Bronisze", "ul. Poznańska 98", "Bronisze", "05-850"}}) {
        place.NAZWA = QString::fromUtf8(name);
        place.ADRES = QString::fromUtf8(street);
        place.MIASTO = QString::fromUtf8(city);
        place.KOD = QString::fromUtf8(postcode);
        place.ID_KRAJU = 1;
        place.UWAGI = QStringLiteral("Rozładunek tylko z awizacją");
        place.Insert();
    }

    exec(QStringLiteral("UPDATE NACZEPY SET MASA = 7200, DLUGOSC = 13.6, SZEROKOSC = 2.48, "
                        "WYSOKOSC = 2.7, IL_OSI = 3, OPONY = '385/65 R22.5'"));
    exec(QStringLiteral("UPDATE KARTY_DR SET REJ_NACZEPA = (SELECT n.NR_REJ FROM NACZEPY n "
                        "WHERE n.ID_NACZEPY = KARTY_DR.IDNACZEPA)"));
    // The cards of past weeks are finished trips.
    Statement trip(m_connection);
    trip.add(QStringLiteral("UPDATE KARTY_DR SET LICZNIK_KONCOWY = LICZNIK_POCZ + :aKm,"));
    trip.add(QStringLiteral("LICZNIK_ILOSC = :aKm, KM = :aKm, KM_LADOWNE = :aLadowne,"));
    trip.add(QStringLiteral("KM_PUSTE = :aPuste, PALIWO_ZAKUPIONE = :aZakup,"));
    trip.add(QStringLiteral("PALIWO_ZAKUPIONE_RAZEM = :aZakup, ZUZYCIE = :aZuzycie,"));
    trip.add(QStringLiteral("STAN_KONCOWY = STAN_POCZ + :aZakup - :aZuzycie"));
    trip.add(QStringLiteral("WHERE ID_KARTY_DR = :aID_KARTY_DR"));
    for (std::size_t i = 0; i + 2 < m_cardKeys.size(); ++i) {
        const int km = 1200 + 230 * int(i % 5);
        const int laden = int(std::lround(km * 0.7));
        const double used = std::round(km * 0.295 * 10.0) / 10.0;
        trip.bind(QStringLiteral("aKm"), km);
        trip.bind(QStringLiteral("aLadowne"), laden);
        trip.bind(QStringLiteral("aPuste"), km - laden - 20);
        trip.bind(QStringLiteral("aZakup"), 250.0 + 20.0 * double(i % 3));
        trip.bind(QStringLiteral("aZuzycie"), used);
        trip.bind(QStringLiteral("aID_KARTY_DR"), m_cardKeys[i]);
        trip.exec();
    }
    exec(QStringLiteral("UPDATE POJAZDY p SET STAN_PALIWA = 300, LICZNIK = (SELECT "
                        "COALESCE(MAX(MAXVALUE(c.LICZNIK_POCZ, c.LICZNIK_KONCOWY)), 0) "
                        "FROM KARTY_DR c WHERE c.IDPOJAZD = p.ID_POJAZDU)"));

    TTerminyObj reminder(m_connection);
    for (int user = 1; user <= 3; ++user) {
        for (const Reminder &r : Reminders) {
            reminder.ID_USER = user;
            reminder.DATA = DateTime::fromDate(m_options.today.addDays(r.day));
            reminder.GODZINA = QString::fromLatin1(r.time);
            reminder.TRESC = QString::fromUtf8(r.text);
            reminder.WYKONANE = r.done;
            reminder.Insert();
        }
    }
}
