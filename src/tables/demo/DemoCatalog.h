#pragma once

#include <array>

// The fixed catalogue of the demo company: invented names, real places.
namespace DemoCatalog {

struct Country
{
    const char *symbol;
    const char *name;
    const char *postcodeMask;
};

inline constexpr std::array<Country, 7> Countries{{
    {"PL", "Polska", "99-999"},
    {"DE", "Niemcy", "99999"},
    {"CZ", "Czechy", "999 99"},
    {"LT", "Litwa", "LT-99999"},
    {"NL", "Holandia", "9999 AA"},
    {"FR", "Francja", "99999"},
    {"SK", "Słowacja", "999 99"},
}};

// Index into Countries.
struct City
{
    const char *name;
    const char *postcode;
    int country;
    double latitude;
    double longitude;
};

inline constexpr std::array<City, 26> Cities{{
    {"Warszawa", "00-001", 0, 52.23, 21.01},     {"Kraków", "30-001", 0, 50.06, 19.94},
    {"Łódź", "90-001", 0, 51.76, 19.46},         {"Wrocław", "50-001", 0, 51.11, 17.03},
    {"Poznań", "60-001", 0, 52.41, 16.93},       {"Gdańsk", "80-001", 0, 54.35, 18.65},
    {"Szczecin", "70-001", 0, 53.43, 14.55},     {"Bydgoszcz", "85-001", 0, 53.12, 18.01},
    {"Lublin", "20-001", 0, 51.25, 22.57},       {"Katowice", "40-001", 0, 50.26, 19.02},
    {"Białystok", "15-001", 0, 53.13, 23.16},    {"Gdynia", "81-001", 0, 54.52, 18.53},
    {"Częstochowa", "42-200", 0, 50.81, 19.12},  {"Radom", "26-600", 0, 51.40, 21.15},
    {"Toruń", "87-100", 0, 53.01, 18.60},        {"Kielce", "25-001", 0, 50.87, 20.63},
    {"Rzeszów", "35-001", 0, 50.04, 22.00},      {"Olsztyn", "10-001", 0, 53.78, 20.48},
    {"Opole", "45-001", 0, 50.67, 17.93},        {"Zielona Góra", "65-001", 0, 51.94, 15.51},
    {"Berlin", "10115", 1, 52.52, 13.40},        {"Hamburg", "20095", 1, 53.55, 9.99},
    {"Praga", "110 00", 2, 50.08, 14.44},        {"Wilno", "LT-01100", 3, 54.69, 25.28},
    {"Rotterdam", "3011 AA", 4, 51.92, 4.48},    {"Bratysława", "811 01", 6, 48.15, 17.11},
}};

struct Company
{
    const char *shortName;
    const char *name;
    const char *street;
    int city;   // index into Cities
    const char *nip;
};

inline constexpr Company OwnCompany{"TRANS-WISŁA", "PHU Trans-Wisła Sp. z o.o.", "ul. Spedycyjna 12", 2,
                                    "725-100-20-46"};

inline constexpr std::array<Company, 18> Clients{{
    {"AGROMAX", "Agromax Sp. z o.o.", "ul. Rolnicza 5", 4, "781-000-11-24"},
    {"BUDMAT", "Budmat S.A.", "ul. Cementowa 17", 9, "634-200-33-41"},
    {"MLECZPOL", "Spółdzielnia Mleczarska Mleczpol", "ul. Łąkowa 2", 10, "542-010-55-76"},
    {"PAPIRUS", "Papirus Sp. j.", "ul. Drzewna 40", 7, "554-300-77-82"},
    {"STALEX", "Stalex Sp. z o.o.", "ul. Hutnicza 9", 12, "573-020-99-04"},
    {"OWOCNY SAD", "Owocny Sad Grupa Producentów", "Sadowa 1", 13, "796-110-12-14"},
    {"MEBLOTEX", "Meblotex S.A.", "ul. Stolarska 23", 4, "779-200-14-14"},
    {"CHEMIROL", "Chemirol Sp. z o.o.", "ul. Azotowa 3", 16, "813-300-16-17"},
    {"NAPOJE ZDRÓJ", "Zdrój Napoje Sp. z o.o.", "ul. Źródlana 8", 18, "754-010-18-14"},
    {"ELEKTROSPRZĘT", "Elektrosprzęt Hurt Sp. z o.o.", "ul. Prądowa 11", 3, "894-200-20-26"},
    {"BALTFISH", "Baltfish Sp. z o.o.", "ul. Rybacka 6", 11, "586-300-22-20"},
    {"PIEKARNIA ZŁOTA", "Piekarnia Złoty Kłos", "ul. Młyńska 14", 2, "727-010-24-29"},
    {"KARTON-PAK", "Karton-Pak Sp. z o.o.", "ul. Tekturowa 4", 6, "851-200-26-21"},
    {"LOGIMED", "Logimed Dystrybucja Sp. z o.o.", "al. Zdrowia 30", 0, "521-300-28-24"},
    {"SZKŁO-TECH", "Szkło-Tech S.A.", "ul. Hutnicza 44", 15, "657-010-30-36"},
    {"WOŁOWINA POLSKA", "Zakłady Mięsne Wołowina Polska", "ul. Rzeźnicza 1", 17, "739-200-32-37"},
    {"AUTOCZĘŚCI", "Autoczęści Hurt Sp. z o.o.", "ul. Motorowa 19", 1, "676-300-34-33"},
    {"EKOFARM", "Ekofarm Sp. z o.o.", "ul. Polna 7", 8, "712-010-36-34"},
}};

inline constexpr std::array<Company, 10> Carriers{{
    {"TRANS-KOL", "Trans-Kol Jan Kolski", "ul. Kolejowa 3", 2, "725-400-01-02"},
    {"SZYBKI KURIER", "Szybki Kurier Sp. z o.o.", "ul. Ekspresowa 1", 0, "525-400-03-02"},
    {"TIR-MAX", "Tir-Max Transport", "ul. Tirowa 8", 4, "782-400-05-02"},
    {"PÓŁNOC LOGISTIC", "Północ Logistic Sp. z o.o.", "ul. Portowa 15", 5, "583-400-07-09"},
    {"EUROCARGO", "Eurocargo Sp. z o.o.", "ul. Graniczna 2", 6, "851-400-09-16"},
    {"KRAK-TRANS", "Krak-Trans s.c.", "ul. Wawelska 9", 1, "675-400-11-10"},
    {"ŚLĄSK-SPED", "Śląsk-Sped Sp. z o.o.", "ul. Górnicza 21", 9, "634-400-13-17"},
    {"MAZOWSZE CARGO", "Mazowsze Cargo Sp. z o.o.", "ul. Mazowiecka 5", 13, "796-400-15-13"},
    {"LUBTRANS", "Lubtrans Piotr Lubicz", "ul. Lubelska 30", 8, "712-400-17-12"},
    {"WIELKOPOLSKA FRACHT", "Wielkopolska Fracht Sp. z o.o.", "ul. Kupiecka 4", 4, "777-400-19-29"},
}};

struct Person
{
    const char *firstName;
    const char *surname;
};

inline constexpr std::array<Person, 8> Drivers{{
    {"Marek", "Wójcik"},     {"Tomasz", "Kamiński"}, {"Paweł", "Lewandowski"}, {"Krzysztof", "Zieliński"},
    {"Grzegorz", "Szymański"}, {"Andrzej", "Woźniak"}, {"Łukasz", "Dąbrowski"}, {"Michał", "Kozłowski"},
}};

inline constexpr std::array<const char *, 12> Goods{{
    "Palety z nawozem", "Cement workowany", "Mleko w proszku", "Papier w rolach", "Pręty stalowe",
    "Jabłka w skrzyniach", "Meble paczkowane", "Opakowania kartonowe", "Napoje w butelkach",
    "Sprzęt AGD", "Szkło okienne", "Części samochodowe",
}};

// Every form class of the module that privileges can be given for.
inline constexpr std::array<const char *, 60> FormClasses{{
    "TfrmZlecPrzychodzace", "TfrmAddEditZlecenia_Przych", "TfrmTowaryNaZleceniu",
    "TfrmAddEditTowaryNaZleceniu", "TfrmAdresy", "TfrmDataWzorca", "TfrmAdvancedEdit",
    "TfrmWaitPlease", "TfrmRODefault", "TfrmAddEditZleceniaZbiorcze", "TfrmWybierzZlecenia",
    "TfrmWybierzPrzesylki", "TfrmListaPrzesylekNaSamochod", "TfrmKartaDrogowa", "TfrmCennikMenu",
    "TfrmCennikWierszeKolumny", "TfrmAddEditCennikWierszeKolumny", "TfrmAddEditGrupy", "TfrmCenniki",
    "TfrmAddEditCenniki", "TfrmCennikiKontrahenci", "TfrmStawkiTaryfowe", "TfrmAddEditStawkiTaryfowe",
    "TfrmMiasta", "TfrmAddEditMiasta", "TfrmFakturowanie", "TfrmRachunekPL", "TfrmZalacznik",
    "TfrmFaktPrzew", "TfrmKwotyPrzewoznik", "TfrmWyborKontrahenta", "TfrmWyborKontrachentDaty",
    "TfrmWybierzDatyAndKontrahenta", "TfrmZestawienieRachunkow", "TfrmRepWspolnicy",
    "TfrmWyborWspolnika", "TfrmPrintReport", "TfrmWydrukiPrzewoz", "TfrmPrintObrotyNaUseraFakt",
    "TfrmPrintObrotyNaUseraFaktObca", "TfrmPrintObrotyNaUseraZagr", "TfrmMiejsceZaladunku",
    // The sibling modules' forms.
    "TfrmKierowcy", "TfrmMechanicy", "TfrmAddEditKierowcy", "TfrmMiejsca", "TfrmAddEditMiejsca",
    "TfrmMiejscowosci", "TfrmAddEditMiejscowosci", "TfrmPojazdy", "TfrmAddEditPojazdy",
    "TfrmNaczepy", "TfrmAddEditNaczepy", "TfrmKontrahenci", "TfrmAddEditKontrahenci",
    "TfrmKartyDrogowe", "TfrmAddEditKartyDrogowe", "TfrmTerminarz", "TfrmPokazTerminy",
    "TfrmAddEditTerminy",
}};

} // namespace DemoCatalog
