#include "CollectiveFixture.h"

#include "ContractorRoles.h"
#include "TKierowcyObj.h"
#include "TPojazdyObj.h"
#include "TStawki_vatObj.h"
#include "TestData.h"

namespace {

template <class Record>
int inserted(Record &record)
{
    EXPECT_TRUE(record.Insert());
    return record.*(Record::description().keyField);
}

} // namespace

void CollectiveFixture::SetUp()
{
    Connection &c = db.connection();
    client = TestData::addContractor(c, QStringLiteral("KLIENT"));
    ownCompany = TestData::addContractor(c, QStringLiteral("HAULIX"));
    carrierB = TestData::addContractor(c, QStringLiteral("ŻBIK TRANS"));
    carrierA = TestData::addContractor(c, QStringLiteral("ANTRANS"));
    clientOnly = TestData::addContractor(c, QStringLiteral("BUDMAT"));
    db.exec(QStringLiteral("UPDATE KONTRAHENCI SET KIERUNEK = %1 WHERE ID_KONTRAHENTA IN (%2, %3)")
                .arg(ContractorRoles::Client)
                .arg(client)
                .arg(clientOnly));
    TestData::addSetting(c, {QStringLiteral("IDWłaściciela"), 'I', ownCompany, {}});

    for (const auto &[description, percent, key] :
         {std::tuple{"23%", 23.0, &vat23}, {"8%", 8.0, &vat8}, {"0%", 0.0, &vat0}}) {
        TStawki_vatObj rate(c);
        rate.OPIS = QString::fromLatin1(description);
        rate.PROCENT = percent;
        *key = inserted(rate);
    }
    for (const auto &[first, last, key] :
         {std::tuple{"Jan", "Żak", &driver1}, {"Ewa", "Łoś", &driver2}}) {
        TKierowcyObj driver(c);
        driver.IMIE = QString::fromUtf8(first);
        driver.NAZWISKO = QString::fromUtf8(last);
        *key = inserted(driver);
    }
    TPojazdyObj vehicle(c);
    vehicle.NR_REJ = QStringLiteral("EL 1000");
    vehicle.LADOWNOSC = 33;
    vehicle.DEF_KIEROWCA = driver1;
    vehicle1 = inserted(vehicle);
    vehicle.NR_REJ = QStringLiteral("EL 2000");
    vehicle.LADOWNOSC = 18;
    vehicle.DEF_KIEROWCA = 0;
    vehicle2 = inserted(vehicle);
}

int CollectiveFixture::addCollective(const std::function<void(TZlecenia_zbiorObj &)> &change)
{
    TZlecenia_zbiorObj record(db.connection());
    record.NUMER = 7;
    record.DATA = DateTime::fromDate(QDate(2026, 5, 4));
    record.IDPRZEWOZNIK = carrierA;
    record.IDPOJAZDU = vehicle1;
    record.IDKIEROWCY = driver1;
    record.TERMINPLATNOSCI = 21;
    record.IDVAT_PRZEWOZNIK = vat8;
    if (change)
        change(record);
    return inserted(record);
}

TZlecenia_zbiorObj CollectiveFixture::collective(int key)
{
    const auto found = TZlecenia_zbiorObj(db.connection())
                           .SelectWhere(QStringLiteral("ID_ZLECENIA_ZBIOR"), opEqual, key);
    EXPECT_EQ(found.size(), 1u);
    return found.empty() ? TZlecenia_zbiorObj(db.connection()) : found.front();
}

int CollectiveFixture::addOrder(const std::function<void(TZlecenia_przychObj &)> &change)
{
    TZlecenia_przychObj record(db.connection());
    record.DATA = DateTime::fromDate(QDate::currentDate());
    record.IDKONTRAHENTA = client;
    record.TYP = QStringLiteral("K");
    record.PALETYPLAN = 10;
    record.PALETYILOSC = 8;
    if (change)
        change(record);
    return inserted(record);
}

TZlecenia_przychObj CollectiveFixture::order(int key)
{
    return TZlecenia_przychObj(db.connection()).SelectById(key);
}
