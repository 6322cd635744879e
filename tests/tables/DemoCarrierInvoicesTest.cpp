// The demo company's carriers' invoices and road cards: something in every
// list a dispatcher opens on the first day.
#include "DemoSeeder.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

namespace {

// Due: issue date + payment days. NRRAMPY 1 is the paid mark.
const char *const States[][2] = {
    {"unpaid, not yet due",
     "NRRAMPY <> 1 AND KWOTA_FAKT_PRZEW > 0 AND DATA_FAKT_WYSTAWIENIA + DNI_FAKT >= '%1'"},
    {"overdue",
     "NRRAMPY <> 1 AND KWOTA_FAKT_PRZEW > 0 AND DATA_FAKT_WYSTAWIENIA + DNI_FAKT < '%1'"},
    {"paid in time", "NRRAMPY = 1 AND DATA_FAKT_PLATNOSCI <= DATA_FAKT_WYSTAWIENIA + DNI_FAKT"},
    {"paid late", "NRRAMPY = 1 AND DATA_FAKT_PLATNOSCI > DATA_FAKT_WYSTAWIENIA + DNI_FAKT"},
};

} // namespace

TEST(DemoCarrierInvoices, EveryStateOnAnyDayOfTheMonth)
{
    // The first of a month: the current month's lists must not be empty.
    for (const QDate today : {QDate(2026, 12, 1), QDate(2026, 11, 22)}) {
        TestDatabase db;
        DemoSeeder::Options options;
        options.orders = 150;
        options.today = today;
        DemoSeeder(db.connection(), options).seed();
        const QString day = today.toString(Qt::ISODate);

        for (const auto &[state, condition] : States) {
            EXPECT_GT(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                               QString::fromLatin1(condition).arg(day)),
                      0)
                << state << " on " << day.toStdString();
        }
        const QString monthStart = QDate(today.year(), today.month(), 1).toString(Qt::ISODate);
        const QString thisMonth
            = QStringLiteral(" BETWEEN '%1' AND '%2 23:59'").arg(monthStart, day);
        EXPECT_GT(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                           QStringLiteral("KWOTA_FAKT_PRZEW > 0 AND DATA_FAKT_WYSTAWIENIA")
                               + thisMonth),
                  0)
            << day.toStdString();
        EXPECT_GT(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                           QStringLiteral("NRRAMPY = 1 AND DATA_FAKT_PLATNOSCI") + thisMonth),
                  0)
            << day.toStdString();
        // Nothing is paid that was never invoiced, nothing issued in the future.
        EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                           QStringLiteral("NRRAMPY = 1 AND NOT KWOTA_FAKT_PRZEW > 0")),
                  0);
        EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"),
                           QStringLiteral("DATA_FAKT_WYSTAWIENIA > '%1' OR "
                                          "DATA_FAKT_PLATNOSCI > '%1' AND NRRAMPY = 1")
                               .arg(day)),
                  0);
        EXPECT_GT(db.count(QStringLiteral("KARTY_DR")), 0);
    }
}
