#include "StoppedSeed.h"

#include "DbError.h"
#include "DemoSeeder.h"
#include "TestDatabase.h"

bool stopSeedHalfWay(TestDatabase &db)
{
    db.exec(QStringLiteral("ALTER TABLE USER_ACCESS ADD CONSTRAINT STOP_SEED CHECK (ID_USER < 0)"));
    bool stopped = false;
    try {
        DemoSeeder::Options options;
        options.orders = 5;
        DemoSeeder(db.connection(), options).seed();
    } catch (const DbError &) {
        stopped = true;
    }
    db.exec(QStringLiteral("ALTER TABLE USER_ACCESS DROP CONSTRAINT STOP_SEED"));
    return stopped;
}
