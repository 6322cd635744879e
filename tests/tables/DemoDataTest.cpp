#include "DbError.h"
#include "DemoSeeder.h"
#include "Schema.h"
#include "StoppedSeed.h"
#include "TestDatabase.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

DemoSeeder::Options smallDemo()
{
    DemoSeeder::Options options;
    options.orders = 150;
    options.today = QDate(2026, 11, 22);
    return options;
}

} // namespace

TEST(DemoData, SeedsAConsistentCompany)
{
    TestDatabase db;
    DemoSeeder(db.connection(), smallDemo()).seed();

    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("DATA IS NOT NULL")), 150);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                       QStringLiteral("DATA NOT BETWEEN '2026-10-22' AND '2026-12-23'")), 0);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("DATA IS NULL AND PALETYPLAN<>0")), 3);

    // The configuration the forms read.
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT SKROT FROM KONTRAHENCI WHERE ID_KONTRAHENTA = "
                                       "(SELECT VALUE_INT FROM KONFIGURACJA WHERE POLE='IDWłaściciela')")),
              QStringLiteral("TRANS-WISŁA"));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT SYMBOL FROM SYMBOLE_WALUT WHERE ID_WALUTY = "
                                       "(SELECT VALUE_INT FROM KONFIGURACJA WHERE POLE='IDWalutyKrajowej')")),
              QStringLiteral("PLN"));
    for (const char *key : {"KartaZeZlecen", "MaskaNrFakturaVatZKraj", "VatKrajZlecSped", "SwwkuExpZlecHaulix",
                            "DataSprzedazyKrotka", "SystemMonitorDelete"}) {
        EXPECT_EQ(db.count(QStringLiteral("KONFIGURACJA"), QStringLiteral("POLE='%1'").arg(QLatin1String(key))), 1)
            << key;
    }
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT LIST(ID_STAWKI || '=' || CAST(PROCENT * 100 AS INTEGER), ' ') FROM "
                                       "(SELECT ID_STAWKI, PROCENT FROM STAWKI_VAT ORDER BY ID_STAWKI)")),
              QStringLiteral("1=23 2=0 3=0 4=0 5=23"));

    // Every order has goods and its loading and unloading place.
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH z"),
                       QStringLiteral("NOT EXISTS (SELECT 1 FROM TOWARY t WHERE t.ID_ZLECENIA = z.ID_ZLECENIA_PRZYCH)")),
              0);
    EXPECT_EQ(db.count(QStringLiteral("MIEJSCA_ZLEC")), 2 * db.count(QStringLiteral("ZLECENIA_PRZYCH")));

    // Invoiced orders are on their invoice, one position each (and one more
    // for a stamp fee), and the invoice's net is the sum of its orders.
    EXPECT_GT(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("IDFAKTURY <> 0")), 0);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH z"),
                       QStringLiteral("IDFAKTURY <> 0 AND NOT EXISTS (SELECT 1 FROM FAKTURY_POZYCJE p WHERE "
                                      "p.ID_FAKTURY = z.IDFAKTURY AND p.ID_ZLECENIA = z.ID_ZLECENIA_PRZYCH)")),
              0);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY f"),
                       QStringLiteral("ABS(f.WARTOSC_NETTO - (SELECT SUM(z.STAWKA_RAZEM + z.OPLATA_SKARBOWA) "
                                      "FROM ZLECENIA_PRZYCH z "
                                      "WHERE z.IDFAKTURY = f.ID_FAKTURY)) > 0.005")),
              0);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("IDFAKTURY <> 0 AND DATA > '2026-11-17'")), 0);

    // A tariff-priced order's total is the sum of its products rounded to cents.
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                       QStringLiteral("IDTARYFY <> 0 AND ABS(STAWKA_RAZEM - (ROUND(KM_LADOWNE*STAWKA_KMLAD, 2) + "
                                      "ROUND(KM_PUSTE*STAWKA_KMPUSTY, 2) + ROUND(ILOSC_GODZIN*STAWKA_GODZINY, 2) + "
                                      "ROUND(PALETYILOSC*STAWKA_PALETY, 2))) > 0.005")),
              0);

    // Privileges: user 1 may do everything on every form; user 2 may not delete.
    EXPECT_EQ(db.count(QStringLiteral("USER_ACCESS"), QStringLiteral("ID_USER=1 AND PRIVIL_DELETE=1")),
              db.count(QStringLiteral("FORMS")));
    EXPECT_EQ(db.count(QStringLiteral("USER_ACCESS a JOIN FORMS f ON f.ID_FORMATKI = a.ID_FORMATKI"),
                       QStringLiteral("a.ID_USER=2 AND f.NAZWA='TfrmZlecPrzychodzace' AND a.PRIVIL_ADD=1 "
                                      "AND a.PRIVIL_DELETE=0")),
              1);

    // Seeding again fails and adds nothing.
    const int orders = db.count(QStringLiteral("ZLECENIA_PRZYCH"));
    const int cities = db.count(QStringLiteral("MIASTA"));
    EXPECT_EQ(DemoSeeder::contents(db.connection()), DemoSeeder::Contents::Data);
    EXPECT_THROW(DemoSeeder(db.connection(), smallDemo()).seed(), DbError);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH")), orders);
    EXPECT_EQ(db.count(QStringLiteral("MIASTA")), cities);

    // The same options give the same data.
    const QString fingerprint = QStringLiteral(
        "SELECT LIST(NUMER || ':' || IDKONTRAHENTA || ':' || IDPRZEWOZNIK || ':' || STAWKA_RAZEM || ':' || IDFAKTURY, ',') "
        "FROM (SELECT * FROM ZLECENIA_PRZYCH ORDER BY ID_ZLECENIA_PRZYCH)");
    const QString first = db.scalar(fingerprint);
    EXPECT_FALSE(first.isEmpty());
    TestDatabase again;
    DemoSeeder(again.connection(), smallDemo()).seed();
    EXPECT_EQ(again.scalar(fingerprint), first);
}

TEST(DemoData, ASeedStoppedHalfWayLeavesUsedKeysOnlyAndSeedingAgainSaysSo)
{
    TestDatabase db;
    EXPECT_EQ(DemoSeeder::contents(db.connection()), DemoSeeder::Contents::Empty);
    ASSERT_TRUE(stopSeedHalfWay(db));

    // The transaction took every row back; the generators stay where the
    // seed left them.
    for (const char *table : {"KRAJE", "MIASTA", "KONTRAHENCI", "USERS", "FORMS"})
        EXPECT_EQ(db.count(QString::fromLatin1(table)), 0) << table;
    EXPECT_NE(db.scalar(QStringLiteral("SELECT GEN_ID(GEN_KONTRAHENCI, 0) FROM RDB$DATABASE")),
              QStringLiteral("0"));
    EXPECT_EQ(DemoSeeder::contents(db.connection()), DemoSeeder::Contents::SeedLeftovers);

    try {
        DemoSeeder(db.connection(), smallDemo()).seed();
        ADD_FAILURE() << "seeded over the leftovers";
    } catch (const DbError &error) {
        EXPECT_EQ(error.message(), DemoSeeder::describe(DemoSeeder::Contents::SeedLeftovers));
        EXPECT_TRUE(error.message().startsWith(
            QStringLiteral("Baza zawiera pozostałości przerwanego wypełniania")));
    }
    EXPECT_EQ(db.count(QStringLiteral("KONTRAHENCI")), 0);
}

TEST(DemoData, CreatingADatabaseNeverOverwrites)
{
    TestDatabase db;
    const qint64 size = QFileInfo(db.path()).size();
    EXPECT_THROW(Schema::createDatabase(db.path()), DbError);
    EXPECT_EQ(QFileInfo(db.path()).size(), size);
    EXPECT_THROW(Schema::createDatabase(QStringLiteral("/proc/haulix/nowa.fdb")), DbError);
}

TEST(DemoData, ALargeCompanysOrdersSpreadOverWorkingDaysEndingAMonthAhead)
{
    // More orders than the month either side of today holds at the daily
    // rate of a forwarder: 3,700 at 80 a day need 47 working days.
    DemoSeeder::Options options;
    options.orders = 3700;
    options.today = QDate(2026, 11, 22);
    TestDatabase db;
    DemoSeeder(db.connection(), options).seed();

    const QString dated = QStringLiteral("DATA IS NOT NULL");
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), dated), 3700);
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT CAST(MAX(DATA) AS DATE) FROM ZLECENIA_PRZYCH")),
              QStringLiteral("2026-12-23"));
    // 47 working days back from Wednesday 23 December is Tuesday 20 October.
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT CAST(MIN(DATA) AS DATE) FROM ZLECENIA_PRZYCH")),
              QStringLiteral("2026-10-20"));
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT COUNT(DISTINCT DATA) FROM ZLECENIA_PRZYCH")),
              QStringLiteral("47"));
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                       QStringLiteral("EXTRACT(WEEKDAY FROM DATA) IN (0, 6)")), 0);

    // Road cards every third day from the first orders up to yesterday, and
    // an order's card is one of its own days.
    EXPECT_EQ(db.count(QStringLiteral("KARTY_DR")), 11);
    EXPECT_EQ(db.scalar(QStringLiteral("SELECT CAST(MIN(Z_DNIA) AS DATE) FROM KARTY_DR")),
              QStringLiteral("2026-10-20"));
    EXPECT_GT(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("IDKARTYDR <> 0")), 0);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH z JOIN KARTY_DR k ON k.ID_KARTY_DR = z.IDKARTYDR"),
                       QStringLiteral("z.DATA < k.Z_DNIA OR z.DATA >= k.Z_DNIA + 3")),
              0);

    // Invoices and carriers' invoices keep their shares of the orders: most
    // orders older than five days invoiced, some carriers' invoices in.
    const int old = db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("DATA <= '2026-11-17'"));
    const int invoiced = db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("IDFAKTURY <> 0"));
    EXPECT_GT(invoiced, old * 7 / 10);
    EXPECT_LT(invoiced, old * 9 / 10);
    EXPECT_GT(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("NUMER_FAKT_PRZEW <> ''")),
              old / 10);
}
