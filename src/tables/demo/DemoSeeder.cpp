#include "DemoSeeder.h"

#include "DemoCatalog.h"
#include "DemoPlan.h"
#include "IndexStatistics.h"
#include "Statement.h"
#include "TableObjects.h"
#include "Transaction.h"

#include <cmath>

using namespace DemoCatalog;

DemoSeeder::DemoSeeder(Connection &connection, Options options)
    : m_connection(connection), m_options(options), m_random(options.seed)
{
}

void DemoSeeder::seed()
{
    Transaction transaction(m_connection);
    TransactionScope scope(transaction);
    if (const Contents found = contents(m_connection); found != Contents::Empty)
        throw DbError(describe(found));
    seedDictionaries();
    seedCitiesAndDistances();
    seedContractors();
    seedCompany();
    seedUsersAndPrivileges();
    seedPricing();
    seedFleet();
    seedOrders();
    seedTemplates();
    seedSiblingRegisters();
    seedCollectiveOrders();
    scope.commit();
    IndexStatistics::refresh(m_connection);
}

void DemoSeeder::exec(const QString &sql)
{
    Statement st(m_connection);
    st.add(sql);
    st.exec();
}

int DemoSeeder::workingDaysAround(const QDate &today)
{
    int days = 0;
    for (int offset = -AroundToday; offset <= AroundToday; ++offset)
        days += isWorkingDay(today.addDays(offset)) ? 1 : 0;
    return days;
}

int DemoSeeder::lastKey(const QString &table)
{
    // The generator's current value is the key just assigned; MAX would
    // read the table.
    Statement st(m_connection);
    st.add(QStringLiteral("SELECT GEN_ID(GEN_%1, 0) FROM RDB$DATABASE").arg(table));
    st.exec();
    return st.integer(0);
}

void DemoSeeder::seedDictionaries()
{
    TKrajeObj country(m_connection);
    for (const Country &c : Countries) {
        country.SYMBOL = QString::fromUtf8(c.symbol);
        country.NAZWA = QString::fromUtf8(c.name);
        country.KOD_POCZTOWY_MASKA = QString::fromUtf8(c.postcodeMask);
        country.Insert();
    }

    // Alphabetical, as the suite's currency list is delivered; PLN lands on 24.
    static constexpr std::array<const char *, 32> currencies{
        "AUD", "BGN", "BRL", "CAD", "CHF", "CNY", "CZK", "DKK", "EUR", "GBP", "HKD",
        "HUF", "IDR", "ILS", "INR", "ISK", "JPY", "KRW", "MXN", "MYR", "NOK", "NZD",
        "PHP", "PLN", "RON", "SEK", "SGD", "THB", "TRY", "UAH", "USD", "ZAR"};
    TSymbole_walutObj currency(m_connection);
    for (const char *symbol : currencies) {
        const QString s = QString::fromLatin1(symbol);
        currency.SYMBOL = s;
        currency.NAZWA = s;
        currency.ID_KRAJU = s == QLatin1String("PLN") ? 1 : s == QLatin1String("EUR") ? 2
                          : s == QLatin1String("CZK") ? 3 : 0;
        currency.DEF_ILOSC = (s == QLatin1String("CZK") || s == QLatin1String("HUF")
                              || s == QLatin1String("JPY")) ? 100 : 1;
        currency.Insert();
    }

    TNumery_tabel_kursowObj table(m_connection);
    const struct { int daysBack; const char *number; double eur, usd, czk; } rateTables[] = {
        {8, "221/A/NBP", 4.2480, 3.9712, 17.08},
        {1, "226/A/NBP", 4.2512, 3.9876, 17.12},
    };
    for (const auto &t : rateTables) {
        table.NUMER = QString::fromLatin1(t.number) + QLatin1Char('/') + QString::number(m_options.today.year());
        table.Z_DNIA = DateTime::fromDate(m_options.today.addDays(-t.daysBack));
        table.Insert();
        const int key = lastKey(QStringLiteral("NUMERY_TABEL_KURSOW"));
        for (const auto &[currencyKey, rate, quantity] :
             {std::tuple{9, t.eur, 1}, std::tuple{31, t.usd, 1}, std::tuple{7, t.czk, 100}}) {
            Statement st(m_connection);
            st.add(QStringLiteral("INSERT INTO TABELE_KURSOW (ID_NUM_TAB, ID_WALUTY, KURS, ILOSC)"));
            st.add(QStringLiteral("VALUES (:aTab, :aWal, :aKurs, :aIlosc)"));
            st.bind(QStringLiteral("aTab"), key);
            st.bind(QStringLiteral("aWal"), currencyKey);
            st.bind(QStringLiteral("aKurs"), rate);
            st.bind(QStringLiteral("aIlosc"), quantity);
            st.exec();
        }
    }

    TStawki_vatObj vat(m_connection);
    for (const auto &[label, fraction] : {std::pair{"23%", 0.23}, {"0%", 0.0}, {"zw.", 0.0}, {"NP", 0.0},
                                          {"23% usł.", 0.23}}) {
        vat.OPIS = QString::fromUtf8(label);
        vat.PROCENT = fraction;
        vat.Insert();
    }

    TRodzaje_platnosciObj payment(m_connection);
    for (const char *name : {"gotówka", "przelew", "kompensata", "karta płatnicza"}) {
        payment.OPIS = QString::fromUtf8(name);
        payment.Insert();
    }

    TMiaryObj unit(m_connection);
    for (const auto &[name, abbreviation] : {std::pair{"tona", "t"}, {"kilogram", "kg"}, {"sztuka", "szt."},
                                             {"paleta", "pal."}, {"metr sześcienny", "m3"}, {"usługa", "usł."}}) {
        unit.NAZWA = QString::fromUtf8(name);
        unit.SKROT = QString::fromUtf8(abbreviation);
        unit.Insert();
        if (unit.NAZWA == QLatin1String("tona"))
            m_tonneUnit = lastKey(QStringLiteral("MIARY"));
        if (unit.SKROT == QStringLiteral("usł."))
            m_serviceUnit = lastKey(QStringLiteral("MIARY"));
    }

    TDokumentyObj document(m_connection);
    for (const auto &[name, action, isDefault] : {std::tuple{"Faktura VAT", 1, 1}, {"Faktura VAT korygująca", 1, 0},
                                                  {"Nota obciążeniowa", 0, 0}}) {
        document.NAZWA = QString::fromUtf8(name);
        document.RODZAJE_AKCJI = action;
        document.DOMYSLNY = isDefault;
        document.Insert();
    }

    TFaktury_tekstyObj text(m_connection);
    for (const char *line : {"Dziękujemy za współpracę.", "Płatność przelewem na wskazany rachunek.",
                             "Usługa transportowa zgodnie ze zleceniem."}) {
        text.NAZWA = QString::fromUtf8(line);
        text.Insert();
    }

    TKonta_bankoweObj account(m_connection);
    account.BANK = QStringLiteral("Bank Polski S.A. O/Łódź");
    account.RACHUNEK = QStringLiteral("12 1020 3352 0000 1102 0123 4567");
    account.OPIS = QStringLiteral("Rachunek główny");
    account.DEFAULT_KONTO = 1;
    account.Insert();
    account.BANK = QStringLiteral("Bank Handlowy S.A.");
    account.RACHUNEK = QStringLiteral("45 1030 1508 0000 0005 0123 4567");
    account.OPIS = QStringLiteral("Rachunek walutowy EUR");
    account.DEFAULT_KONTO = 0;
    account.Insert();

    for (const auto &[number, name] : {std::pair{1, "Jan Wiśniewski"}, {1, "Adam Mazur"}, {2, "Słubice"}}) {
        Statement st(m_connection);
        st.add(QStringLiteral("INSERT INTO FILTRY_PRZYCH (NR_FILTRA, OPIS) VALUES (:aNr, :aOpis)"));
        st.bind(QStringLiteral("aNr"), number);
        st.bind(QStringLiteral("aOpis"), QString::fromUtf8(name));
        st.exec();
    }
}

void DemoSeeder::seedCitiesAndDistances()
{
    TMiastaObj city(m_connection);
    for (const City &c : Cities) {
        city.NAZWA = QString::fromUtf8(c.name);
        city.KOD = QString::fromUtf8(c.postcode);
        city.IDKRAJU = c.country + 1;
        city.Insert();
        m_cityKeys.push_back(lastKey(QStringLiteral("MIASTA")));
    }
    const auto store = [&](int from, int via, int to, int km) {
        Statement st(m_connection);
        st.add(QStringLiteral("INSERT into ODLEGLOSCI "));
        st.add(QStringLiteral("(IDMIASTAOD,IDMIASTAVIA,IDMIASTADO,ODLEGLOSC)"));
        st.add(QStringLiteral("VALUES (:aOd, :aVia, :aDo, :aKm)"));
        st.bind(QStringLiteral("aOd"), from);
        st.bind(QStringLiteral("aVia"), via);
        st.bind(QStringLiteral("aDo"), to);
        st.bind(QStringLiteral("aKm"), km);
        st.exec();
    };
    // Every pair once, in one direction: a distance holds both ways.
    for (std::size_t a = 0; a < Cities.size(); ++a) {
        for (std::size_t b = a + 1; b < Cities.size(); ++b) {
            const bool domestic = Cities[a].country == 0 && Cities[b].country == 0;
            if (domestic || a < 6)
                store(m_cityKeys[a], 0, m_cityKeys[b], distance(int(a), int(b)));
        }
    }
    // A few routes through Łódź, the company's base.
    for (const auto &[from, to] : {std::pair{0, 3}, {5, 1}, {6, 8}, {4, 15}}) {
        store(m_cityKeys[std::size_t(from)], m_cityKeys[2], m_cityKeys[std::size_t(to)],
              distance(from, 2) + distance(2, to));
    }
}

int DemoSeeder::distance(int fromCity, int toCity) const
{
    // Great-circle distance with a road factor: plausible, and the same
    // every time.
    const City &a = Cities[std::size_t(fromCity)];
    const City &b = Cities[std::size_t(toCity)];
    constexpr double radians = M_PI / 180.0;
    const double dLat = (b.latitude - a.latitude) * radians;
    const double dLon = (b.longitude - a.longitude) * radians;
    const double h = std::sin(dLat / 2) * std::sin(dLat / 2)
        + std::cos(a.latitude * radians) * std::cos(b.latitude * radians) * std::sin(dLon / 2) * std::sin(dLon / 2);
    return int(std::lround(6371.0 * 2 * std::asin(std::sqrt(h)) * 1.22));
}

void DemoSeeder::seedContractors()
{
    TKontrahenciObj contractor(m_connection);
    const auto insert = [&](const Company &c, int paymentDays) {
        const City &city = Cities[std::size_t(c.city)];
        contractor.SKROT = QString::fromUtf8(c.shortName);
        contractor.NAZWA = QString::fromUtf8(c.name);
        contractor.NIP = QString::fromUtf8(c.nip);
        contractor.ADRES = QString::fromUtf8(c.street);
        contractor.MIEJSCOWOSC = QString::fromUtf8(city.name);
        contractor.KOD = QString::fromUtf8(city.postcode);
        contractor.ID_KRAJU = city.country + 1;
        contractor.ID_RODZ_PLATNOSCI = 2;
        contractor.PLATNOSC_DNI = paymentDays;
        contractor.AKTYWNY = 1;
        contractor.ID_WALUTY = DomesticCurrency;
        contractor.TELEFON = QStringLiteral("+48 42 %1").arg(630 + int(m_random.bounded(300)) * 3);
        contractor.DATA_WPISU = DateTime::fromDate(m_options.today.addYears(-2).addDays(-int(m_random.bounded(400))));
        contractor.Insert();
        return lastKey(QStringLiteral("KONTRAHENCI"));
    };
    insert(OwnCompany, 14);
    for (const Company &c : Clients)
        m_clientKeys.push_back(insert(c, 30));
    for (const Company &c : Carriers)
        m_carrierKeys.push_back(insert(c, 45));

    // Each client's own loading place.
    TMiejscaObj place(m_connection);
    for (const Company &c : Clients) {
        const City &city = Cities[std::size_t(c.city)];
        place.NAZWA = QString::fromUtf8(c.name);
        place.MIASTO = QString::fromUtf8(city.name);
        place.KOD = QString::fromUtf8(city.postcode);
        place.ADRES = QString::fromUtf8(c.street);
        place.ID_KRAJU = city.country + 1;
        place.Insert();
    }
}

void DemoSeeder::seedCompany()
{
    const City &city = Cities[std::size_t(OwnCompany.city)];
    Statement st(m_connection);
    st.add(QStringLiteral("INSERT INTO DANE_FIRMY (NAZWA, KOD, MIEJSCOWOSC, ADRES, NIP, REGON, KONTAKT1,"));
    st.add(QStringLiteral("KONTAKT2, KONTAKT3, MIEJSCE_WYSTAWIANIA, WOJEWODZTWO, EURONIP_1)"));
    st.add(QStringLiteral("VALUES (:aNazwa, :aKod, :aMiasto, :aAdres, :aNip, :aRegon, :aK1, :aK2, :aK3,"));
    st.add(QStringLiteral(":aMiejsce, :aWoj, :aEuroNip)"));
    st.bind(QStringLiteral("aNazwa"), QString::fromUtf8(OwnCompany.name));
    st.bind(QStringLiteral("aKod"), QString::fromUtf8(city.postcode));
    st.bind(QStringLiteral("aMiasto"), QString::fromUtf8(city.name));
    st.bind(QStringLiteral("aAdres"), QString::fromUtf8(OwnCompany.street));
    st.bind(QStringLiteral("aNip"), QString::fromUtf8(OwnCompany.nip));
    st.bind(QStringLiteral("aRegon"), QStringLiteral("472 000 123"));
    st.bind(QStringLiteral("aK1"), QStringLiteral("tel. +48 42 630 10 20"));
    st.bind(QStringLiteral("aK2"), QStringLiteral("faks +48 42 630 10 21"));
    st.bind(QStringLiteral("aK3"), QStringLiteral("biuro@trans-wisla.example.pl"));
    st.bind(QStringLiteral("aMiejsce"), QString::fromUtf8(city.name));
    st.bind(QStringLiteral("aWoj"), QStringLiteral("łódzkie"));
    st.bind(QStringLiteral("aEuroNip"), QStringLiteral("PL7251002046"));
    st.exec();

    const auto setting = [&](const QString &name, const char *type, int integer, const QString &text) {
        Statement insert(m_connection);
        insert.add(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT, VALUE_STRING)"));
        insert.add(QStringLiteral("VALUES (:aPole, :aTyp, :aInt, :aString)"));
        insert.bind(QStringLiteral("aPole"), name);
        insert.bind(QStringLiteral("aTyp"), QString::fromLatin1(type));
        insert.bind(QStringLiteral("aInt"), integer);
        insert.bind(QStringLiteral("aString"), text);
        insert.exec();
    };
    setting(QStringLiteral("IDWłaściciela"), "I", OwnerKey, QString());
    setting(QStringLiteral("KartaZeZlecen"), "B", 1, QString());
    setting(QStringLiteral("MaskaNrFakturaVatZKraj"), "S", 0, QStringLiteral("%###;/;%M;/;%R"));
    setting(QStringLiteral("VatKrajZlecSped"), "I", 1, QString());
    setting(QStringLiteral("SwwkuExpZlecHaulix"), "S", 0, QStringLiteral("49.41.19"));
    setting(QStringLiteral("IDWalutyKrajowej"), "I", DomesticCurrency, QString());
    setting(QStringLiteral("DataSprzedazyKrotka"), "B", 0, QString());
    setting(QStringLiteral("SystemMonitorDelete"), "B", 1, QString());
    setting(QStringLiteral("MiastoDomowe"), "S", 0, QString::fromUtf8(city.name));
}

void DemoSeeder::seedUsersAndPrivileges()
{
    TUsersObj user(m_connection);
    for (const auto &[login, first, last] : {std::tuple{"admin", "Jan", "Kowalski"},
                                             {"anowak", "Anna", "Nowak"},
                                             {"pwisniewski", "Piotr", "Wiśniewski"}}) {
        user.LOGIN = QString::fromUtf8(login);
        user.IMIE = QString::fromUtf8(first);
        user.NAZWISKO = QString::fromUtf8(last);
        user.VISIBLE = 1;
        user.ID_GRUPY = user.LOGIN == QLatin1String("admin") ? 1 : 2;
        user.MIASTO = QStringLiteral("Łódź");
        user.PASSCHANGED = DateTime::fromDate(m_options.today.addDays(-40));
        user.Insert();
    }
    for (std::size_t i = 0; i < FormClasses.size(); ++i) {
        Statement form(m_connection);
        form.add(QStringLiteral("INSERT INTO FORMS (NAZWA) VALUES (:aNazwa)"));
        form.bind(QStringLiteral("aNazwa"), QString::fromLatin1(FormClasses[i]));
        form.exec();
        const int formKey = lastKey(QStringLiteral("FORMS"));
        // User 1 may do everything; the dispatchers may not delete, and the
        // second one may not add or edit either.
        for (const auto &[userKey, run, add, edit, remove] :
             {std::tuple{1, 1, 1, 1, 1}, {2, 1, 1, 1, 0}, {3, 1, 0, 0, 0}}) {
            Statement access(m_connection);
            access.add(QStringLiteral("INSERT INTO USER_ACCESS (ID_USER, ID_FORMATKI, PRIVIL_RUN, PRIVIL_ADD,"));
            access.add(QStringLiteral("PRIVIL_EDIT, PRIVIL_DELETE) VALUES (:aUser, :aForm, :aRun, :aAdd, :aEdit, :aDel)"));
            access.bind(QStringLiteral("aUser"), userKey);
            access.bind(QStringLiteral("aForm"), formKey);
            access.bind(QStringLiteral("aRun"), run);
            access.bind(QStringLiteral("aAdd"), add);
            access.bind(QStringLiteral("aEdit"), edit);
            access.bind(QStringLiteral("aDel"), remove);
            access.exec();
        }
    }
}

void DemoSeeder::seedPricing()
{
    TTaryfyprzewoznikaObj tariff(m_connection);
    const auto insertTariff = [&](const char *name, int number, bool own, double perTonne, double perKm,
                                  double perHour, double perPallet) {
        tariff.NAZWA_STAWKI = QString::fromUtf8(name);
        tariff.NUMER_STAWKI = number;
        tariff.TARYFAWLASNA = own ? 1 : 0;
        tariff.KWOTA_ZA_KM = perTonne;
        tariff.KWOTA_ZA_KM_LAD = perKm;
        tariff.KWOTA_ZA_GODZ = perHour;
        tariff.KWOTA_ZA_PALETE = perPallet;
        tariff.MAGAZYNOWANIE = own ? 35.0 : 0.0;
        tariff.Insert();
        (own ? m_ownTariffKeys : m_carrierTariffKeys).push_back(lastKey(QStringLiteral("TARYFYPRZEWOZNIKA")));
    };
    insertTariff("Krajowa standard", 1, true, 12.50, 3.20, 85.00, 45.00);
    insertTariff("Krajowa chłodnia", 2, true, 15.00, 3.85, 95.00, 55.00);
    insertTariff("Ekspres", 3, true, 0.00, 4.40, 120.00, 0.00);
    insertTariff("Podwykonawca krajowy", 11, false, 10.00, 2.70, 70.00, 35.00);
    insertTariff("Podwykonawca chłodnia", 12, false, 12.00, 3.25, 80.00, 42.00);

    TCenniki_kraj_wierszeObj row(m_connection);
    std::vector<int> rows;
    int from = 0;
    for (int upTo : {50, 100, 200, 300, 500, 800}) {
        row.ZAKRES_WOD = from;
        row.ZAKRES_WDO = upTo;
        row.Insert();
        rows.push_back(row.ID_CENNIKI_KRAJ_WIERSZE);
        from = upTo + 1;
    }
    TCenniki_kraj_kolumnyObj column(m_connection);
    std::vector<int> columns;
    from = 0;
    for (int upTo : {1000, 5000, 12000, 24000}) {
        column.ZAKRES_KOD = from;
        column.ZAKRES_KDO = upTo;
        column.Insert();
        columns.push_back(column.ID_CENNIKI_KRAJ_KOLUMNY);
        from = upTo + 1;
    }
    TCenniki_kraj_grupyObj group(m_connection);
    for (const auto &[name, blocked] : {std::pair{"Klienci kluczowi", 0}, {"Chłodnie", 0}, {"Stary cennik 2024", 1}}) {
        group.NAZWA = QString::fromUtf8(name);
        group.BLOKADA = blocked;
        group.Insert();
    }
    TCenniki_krajObj cell(m_connection);
    for (int groupKey : {0, 1, 2}) {
        const double factor = groupKey == 1 ? 0.92 : groupKey == 2 ? 1.18 : 1.0;
        for (std::size_t r = 0; r < rows.size(); ++r) {
            for (std::size_t c = 0; c < columns.size(); ++c) {
                cell.GRUPA = groupKey;
                cell.KILOMETRY = rows[r];
                cell.KILOGRAMY = columns[c];
                cell.KWOTA = std::round((180.0 + 140.0 * double(r) * (1.0 + 0.45 * double(c))) * factor);
                cell.Insert();
            }
        }
    }
    for (std::size_t i = 0; i < 8; ++i) {
        Statement st(m_connection);
        st.add(QStringLiteral("INSERT INTO CENNIKI_KRAJ_KONTRAHENCI (IDKONTRAHENT, IDGRUPY) VALUES (:aK, :aG)"));
        st.bind(QStringLiteral("aK"), m_clientKeys[i]);
        st.bind(QStringLiteral("aG"), i < 5 ? 1 : 2);
        st.exec();
    }
}

void DemoSeeder::seedFleet()
{
    TKierowcyObj driver(m_connection);
    for (const Person &p : Drivers) {
        driver.IMIE = QString::fromUtf8(p.firstName);
        driver.NAZWISKO = QString::fromUtf8(p.surname);
        driver.MIEJSCOWSC = QStringLiteral("Łódź");
        driver.KOD = QStringLiteral("90-001");
        driver.TEL_KOM = QStringLiteral("+48 600 %1 %2").arg(100 + int(m_random.bounded(800))).arg(100 + int(m_random.bounded(800)));
        driver.DATA_UR = DateTime::fromDate(QDate(1965 + int(m_random.bounded(30)), 1 + int(m_random.bounded(12)), 10));
        driver.Insert();
        m_driverKeys.push_back(lastKey(QStringLiteral("KIEROWCY")));
    }
    TNaczepyObj trailer(m_connection);
    std::vector<int> trailerKeys;
    for (const auto &[plate, type] : {std::pair{"EL 7N21", "Chłodnia"}, {"EL 7N22", "Firana"},
                                      {"EL 7N23", "Firana"}, {"EL 7N24", "Wywrotka"}}) {
        trailer.NR_REJ = QString::fromUtf8(plate);
        trailer.TYP = QString::fromUtf8(type);
        trailer.LADOWNOSC = 33;
        trailer.ROK_PROD = 2019;
        trailer.Insert();
        trailerKeys.push_back(lastKey(QStringLiteral("NACZEPY")));
    }
    TPojazdyObj vehicle(m_connection);
    const char *plates[] = {"EL 4521K", "EL 4522K", "EL 4523K", "EL 4524K", "EL 9001P", "EL 9002P"};
    for (std::size_t i = 0; i < std::size(plates); ++i) {
        vehicle.NR_REJ = QString::fromLatin1(plates[i]);
        vehicle.TYP = i < 4 ? QStringLiteral("Ciągnik siodłowy") : QStringLiteral("Solówka 12 t");
        vehicle.LADOWNOSC = i < 4 ? 24000 : 12000;
        vehicle.ROK_PROD = 2016 + int(i);
        vehicle.DEF_NACZEPA = i < trailerKeys.size() ? trailerKeys[i] : 0;
        vehicle.DEF_KIEROWCA = m_driverKeys[i];
        vehicle.RODZAJ_PALIWA = QStringLiteral("ON");
        vehicle.NORMA_PALIWA = i < 4 ? 29.5 : 21.0;
        vehicle.NORMA_AGREGATU = 2.1;
        vehicle.Insert();
        m_vehicleKeys.push_back(lastKey(QStringLiteral("POJAZDY")));
    }
    TKarty_drObj card(m_connection);
    // One card every few days up to yesterday, from the first orders on.
    const int firstCard = firstRoadCardOffset();
    const int cards = (-1 - firstCard) / RoadCardDays + 1;
    for (int i = 0; i < cards; ++i) {
        const std::size_t v = std::size_t(i) % m_vehicleKeys.size();
        card.NUMER = i + 1;
        card.Z_DNIA = DateTime::fromDate(m_options.today.addDays(firstCard + RoadCardDays * i));
        card.IDPOJAZD = m_vehicleKeys[v];
        card.IDKIEROWCA = m_driverKeys[v];
        card.IDNACZEPA = v < trailerKeys.size() ? trailerKeys[v] : 0;
        card.REJ_POJAZD = QString::fromLatin1(plates[v]);
        card.KIEROWCA = QString::fromUtf8(Drivers[v].firstName) + QLatin1Char(' ') + QString::fromUtf8(Drivers[v].surname);
        card.LICZNIK_POCZ = 412000 + 2500 * i;
        card.STAN_POCZ = 300.0;
        card.Insert();
        m_cardKeys.push_back(lastKey(QStringLiteral("KARTY_DR")));
    }
}
