#include "ReportsFixture.h"

#include "TableObjects.h"
#include "TestData.h"

ReportsFixture::ReportsFixture()
{
    Connection &c = db.connection();
    db.exec(QStringLiteral("INSERT INTO DANE_FIRMY (NAZWA, ADRES, KOD, MIEJSCOWOSC) VALUES "
                           "('%1', 'ul. Portowa 5', '80-001', 'Gdańsk')")
                .arg(Company));
    own = TestData::addContractor(c, QStringLiteral("ŻURAW"));
    client = TestData::addContractor(c, QStringLiteral("KLIENT A"));
    client2 = TestData::addContractor(c, QStringLiteral("KLIENT B"));
    carrier = TestData::addContractor(c, QStringLiteral("PRZEWOZ X"));
    TestData::addSetting(c, {.name = QStringLiteral("IDWłaściciela"), .number = own, .text = {}});

    TStawki_vatObj vat(c);
    vat.OPIS = QStringLiteral("23%");
    vat.PROCENT = 0.23;
    EXPECT_TRUE(vat.Insert());
    vat.OPIS = QStringLiteral("zw.");
    vat.PROCENT = 0.0;
    EXPECT_TRUE(vat.Insert());
    vat0 = TestData::lastKey(c, QStringLiteral("STAWKI_VAT"), QStringLiteral("ID_STAWKI"));

    db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA) VALUES ('PL', 'Polska')"));
    db.exec(QStringLiteral("INSERT INTO KRAJE (SYMBOL, NAZWA) VALUES ('DE', 'Niemcy')"));
    db.exec(QStringLiteral("INSERT INTO SYMBOLE_WALUT (ID_KRAJU, SYMBOL) VALUES (1, 'PLN')"));
    TestData::addSetting(c, {.name = QStringLiteral("IDWalutyKrajowej"), .number = 1, .text = {}});
    poznan = TestData::addCity(c, {.name = QStringLiteral("Poznań"), .postcode = {}, .country = 1});
    krakow = TestData::addCity(c, {.name = QStringLiteral("Kraków"), .postcode = {}, .country = 1});
    berlin = TestData::addCity(c, {.name = QStringLiteral("Berlin"), .postcode = {}, .country = 2});
    gdansk = TestData::addCity(c, {.name = QStringLiteral("Gdańsk"), .postcode = {}, .country = 1});
    torun = TestData::addCity(c, {.name = QStringLiteral("Toruń"), .postcode = {}, .country = 1});

    alfa = TestData::addContractor(c, QStringLiteral("ALFA"));
    beta = TestData::addContractor(c, QStringLiteral("BETA"));
    gamma = TestData::addContractor(c, QStringLiteral("GAMMA"));
    transX = TestData::addContractor(c, QStringLiteral("TRANS-X"));
    cargoY = TestData::addContractor(c, QStringLiteral("CARGO-Y"));
    anna = TestData::addUser(c, {QStringLiteral("anna"), QStringLiteral("Anna"),
                                 QStringLiteral("Nowak")});
    bartek = TestData::addUser(c, {QStringLiteral("bartek"), QStringLiteral("Bartosz"),
                                   QStringLiteral("Wiśniewski")});
    celina = TestData::addUser(c, {QStringLiteral("celina"), QStringLiteral("Celina"),
                                   QStringLiteral("Kowalska")});
}

int ReportsFixture::addInvoice(const Invoice &invoice)
{
    Connection &c = db.connection();
    TFakturyObj record(c);
    record.NR_KOLEJNY = invoice.sequence;
    record.NUMER_PELNY = invoice.number.isEmpty()
        ? QStringLiteral("%1/03/2026").arg(invoice.sequence)
        : invoice.number;
    record.ID_RODZAJ_DOK = invoice.kind;
    record.ID_KONTRAHENTA = invoice.client ? invoice.client : client;
    record.DATA_WYSTAWIENIA = DateTime::fromDate(invoice.issued);
    record.DATA_SPRZEDAZY = DateTime::fromDate(invoice.sold);
    record.ILOSC_DNI_PLATN = invoice.days;
    record.ID_WYSTAWIL = invoice.user;
    EXPECT_TRUE(record.Insert());
    const int key = TestData::lastKey(c, QStringLiteral("FAKTURY"), QStringLiteral("ID_FAKTURY"));
    TFaktury_pozycjeObj line(c);
    line.ID_FAKTURY = key;
    for (const Line &l : invoice.lines) {
        line.ILOSC = l.quantity;
        line.CENA_NETTO = l.price;
        line.ID_VAT = l.vat ? l.vat : 1;
        line.RODZAJ_USLUGI = l.kind;
        EXPECT_TRUE(line.Insert());
    }
    return key;
}

int ReportsFixture::addOrder(const Order &order)
{
    Connection &c = db.connection();
    TZlecenia_przychObj record(c);
    record.DATA = DateTime::fromDate(QDate(2026, 3, 5));
    record.NUMER = order.number;
    record.IDFAKTURY = order.invoice;
    record.IDKONTRAHENTA = order.client ? order.client : client;
    record.IDPRZEWOZNIK = order.carrier ? order.carrier : own;
    record.POJAZD = order.vehicle;
    record.STAWKA_RAZEM = order.rate;
    record.KOSZTRAZEM = order.cost;
    record.IDMIASTO_OD = poznan;
    record.IDMIASTO_DO = order.abroad ? berlin : krakow;
    record.FILTR1 = order.partner;
    EXPECT_TRUE(record.Insert());
    return record.ID_ZLECENIA_PRZYCH;
}

PartnersSelection ReportsFixture::partnersOfMarch()
{
    PartnersSelection s;
    s.from = QDate(2026, 3, 1);
    s.to = QDate(2026, 3, 31);
    s.fromText = QStringLiteral("2026-03-01");
    s.toText = QStringLiteral("2026-03-31");
    return s;
}

int ReportsFixture::addStatementOrder(const StatementOrder &order)
{
    TZlecenia_przychObj o(db.connection());
    o.NUMER = order.number;
    o.DATA = DateTime::fromDate(order.day);
    o.IDKONTRAHENTA = order.client;
    o.IDPRZEWOZNIK = order.carrier;
    o.IDUSER = order.user;
    o.IDMIASTO_OD = gdansk;
    o.IDMIASTO_VIA = order.number % 2 == 0 ? torun : 0;
    o.IDMIASTO_DO = krakow;
    o.KWOTA = order.amount;
    o.KM_LADOWNE = order.loadedKm;
    o.STAWKA_KMLAD = order.loadedKmRate;
    o.KOSZTRAZEM = order.cost;
    o.NUMER_FAKT_PRZEW = order.carrierInvoice;
    o.KWOTA_FAKT_PRZEW = order.carrierAmount;
    o.DATA_FAKT_WYSTAWIENIA = DateTime::fromDate(order.carrierIssued);
    o.DNI_FAKT = order.carrierDays;
    o.NRRAMPY = order.carrierPaid ? 1 : 0;
    o.ZAPLACONA_KWOTA = order.carrierPaidAmount;
    EXPECT_TRUE(o.Insert());
    return o.ID_ZLECENIA_PRZYCH;
}

void ReportsFixture::seedCompany()
{
    const auto day = [](int month, int day) { return QDate(2026, month, day); };
    const auto add = [this](const StatementOrder &order) { addStatementOrder(order); };
    add({.number = 1, .day = day(3, 2), .client = alfa, .carrier = transX, .user = anna,
              .amount = 1234.56, .cost = 1000.0, .carrierInvoice = QStringLiteral("TX/1"),
              .carrierAmount = 1000.0, .carrierIssued = day(3, 3), .carrierPaid = true});
    add({.number = 2, .day = day(3, 5), .client = alfa, .carrier = transX, .user = bartek,
              .amount = 0.40, .loadedKm = 100, .loadedKmRate = 2.345, .cost = 200.0});
    add({.number = 3, .day = day(3, 10), .client = beta, .carrier = cargoY, .user = anna,
              .amount = 3000.0, .cost = 2000.0, .carrierInvoice = QStringLiteral("CY/7"),
              .carrierAmount = 2100.0, .carrierIssued = day(3, 12), .carrierDays = 7,
              .carrierPaidAmount = 600.0});
    add({.number = 4, .day = day(3, 15), .client = gamma, .carrier = own, .user = bartek,
              .amount = 500.0, .cost = 600.0, .carrierInvoice = QStringLiteral("ZW/1"),
              .carrierAmount = 100.0, .carrierIssued = day(3, 25)});
    add({.number = 5, .day = day(4, 1), .client = alfa, .carrier = transX, .user = celina,
              .amount = 999.0, .cost = 900.0});
    add({.number = 6, .day = day(2, 20), .client = beta, .carrier = cargoY, .user = anna,
              .amount = 800.0, .cost = 500.0});
    const auto invoice = [this](const char *number, int kind, QDate issued, int user, int client,
                                std::vector<Line> lines) {
        addInvoice({.number = number, .client = client, .issued = issued, .kind = kind,
                    .user = user, .lines = lines});
    };
    invoice("001/03/2026", 1, day(3, 5), anna, alfa, {{1.0, 1235.0}, {2.0, 10.005}});
    invoice("002/03/2026", 1, day(3, 20), bartek, beta, {{1.0, 3000.0}});
    invoice("K/03/2026", 2, day(3, 21), bartek, beta, {{1.0, 50.0}});
    invoice("001/04/2026", 1, day(4, 2), anna, alfa, {{1.0, 70.0}});
}
