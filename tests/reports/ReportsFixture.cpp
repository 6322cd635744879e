#include "ReportsFixture.h"

#include "TFakturyObj.h"
#include "TFaktury_pozycjeObj.h"
#include "TStawki_vatObj.h"
#include "TZlecenia_przychObj.h"
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
    return record.GetMaxId();
}

PartnersSelection ReportsFixture::march()
{
    PartnersSelection s;
    s.from = QDate(2026, 3, 1);
    s.to = QDate(2026, 3, 31);
    s.fromText = QStringLiteral("2026-03-01");
    s.toText = QStringLiteral("2026-03-31");
    return s;
}
