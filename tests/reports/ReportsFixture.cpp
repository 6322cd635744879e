#include "ReportsFixture.h"

#include "TableObjects.h"
#include "TestData.h"

ReportsFixture::ReportsFixture()
{
    Connection &c = db.connection();
    db.exec(QStringLiteral("INSERT INTO DANE_FIRMY (NAZWA) VALUES ('%1')").arg(Company));
    alfa = TestData::addContractor(c, QStringLiteral("ALFA"));
    beta = TestData::addContractor(c, QStringLiteral("BETA"));
    gamma = TestData::addContractor(c, QStringLiteral("GAMMA"));
    transX = TestData::addContractor(c, QStringLiteral("TRANS-X"));
    cargoY = TestData::addContractor(c, QStringLiteral("CARGO-Y"));
    own = TestData::addContractor(c, QStringLiteral("ŻURAW"));
    TestData::addSetting(c, {.name = QStringLiteral("IDWłaściciela"), .number = own});
    anna = TestData::addUser(c, {QStringLiteral("anna"), QStringLiteral("Anna"),
                                 QStringLiteral("Nowak")});
    bartek = TestData::addUser(c, {QStringLiteral("bartek"), QStringLiteral("Bartosz"),
                                   QStringLiteral("Wiśniewski")});
    celina = TestData::addUser(c, {QStringLiteral("celina"), QStringLiteral("Celina"),
                                   QStringLiteral("Kowalska")});
    gdansk = TestData::addCity(c, {QStringLiteral("Gdańsk")});
    torun = TestData::addCity(c, {QStringLiteral("Toruń")});
    krakow = TestData::addCity(c, {QStringLiteral("Kraków")});
    TStawki_vatObj rate(c);
    rate.OPIS = QStringLiteral("23%");
    rate.PROCENT = 0.23;
    EXPECT_TRUE(rate.Insert());
}

int ReportsFixture::addOrder(const Order &order)
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
    return o.GetMaxId();
}

int ReportsFixture::addInvoice(const QString &number, int kind, const QDate &issued, int user,
                               int client, std::initializer_list<Position> positions)
{
    TFakturyObj invoice(db.connection());
    invoice.NUMER_PELNY = number;
    invoice.ID_RODZAJ_DOK = kind;
    invoice.DATA_WYSTAWIENIA = DateTime::fromDate(issued);
    invoice.ID_WYSTAWIL = user;
    invoice.ID_KONTRAHENTA = client;
    EXPECT_TRUE(invoice.Insert());
    const int key = invoice.GetMaxId();
    TFaktury_pozycjeObj position(db.connection());
    for (const Position &p : positions) {
        position.ID_FAKTURY = key;
        position.TRESC = QStringLiteral("Usługa transportowa");
        position.ILOSC = p.quantity;
        position.CENA_NETTO = p.price;
        position.ID_VAT = 1;
        EXPECT_TRUE(position.Insert());
    }
    return key;
}

void ReportsFixture::seedCompany()
{
    const auto day = [](int month, int day) { return QDate(2026, month, day); };
    addOrder({.number = 1, .day = day(3, 2), .client = alfa, .carrier = transX, .user = anna,
              .amount = 1234.56, .cost = 1000.0, .carrierInvoice = QStringLiteral("TX/1"),
              .carrierAmount = 1000.0, .carrierIssued = day(3, 3), .carrierPaid = true});
    addOrder({.number = 2, .day = day(3, 5), .client = alfa, .carrier = transX, .user = bartek,
              .amount = 0.40, .loadedKm = 100, .loadedKmRate = 2.345, .cost = 200.0});
    addOrder({.number = 3, .day = day(3, 10), .client = beta, .carrier = cargoY, .user = anna,
              .amount = 3000.0, .cost = 2000.0, .carrierInvoice = QStringLiteral("CY/7"),
              .carrierAmount = 2100.0, .carrierIssued = day(3, 12), .carrierDays = 7,
              .carrierPaidAmount = 600.0});
    addOrder({.number = 4, .day = day(3, 15), .client = gamma, .carrier = own, .user = bartek,
              .amount = 500.0, .cost = 600.0, .carrierInvoice = QStringLiteral("ZW/1"),
              .carrierAmount = 100.0, .carrierIssued = day(3, 25)});
    addOrder({.number = 5, .day = day(4, 1), .client = alfa, .carrier = transX, .user = celina,
              .amount = 999.0, .cost = 900.0});
    addOrder({.number = 6, .day = day(2, 20), .client = beta, .carrier = cargoY, .user = anna,
              .amount = 800.0, .cost = 500.0});
    addInvoice(QStringLiteral("001/03/2026"), 1, day(3, 5), anna, alfa,
               {{1.0, 1235.0}, {2.0, 10.005}});
    addInvoice(QStringLiteral("002/03/2026"), 1, day(3, 20), bartek, beta, {{1.0, 3000.0}});
    addInvoice(QStringLiteral("K/03/2026"), 2, day(3, 21), bartek, beta, {{1.0, 50.0}});
    addInvoice(QStringLiteral("001/04/2026"), 1, day(4, 2), anna, alfa, {{1.0, 70.0}});
}
