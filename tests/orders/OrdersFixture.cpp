#include "OrdersFixture.h"

#include "IncomingOrderStatements.h"

TZlecenia_przychObj OrdersFixture::lastOrder()
{
    return IncomingOrderStatements::load(
        db.connection(),
        TestData::lastKey(db.connection(), QStringLiteral("ZLECENIA_PRZYCH"),
                          QStringLiteral("ID_ZLECENIA_PRZYCH")));
}

void OrdersFixture::choose(QComboBox *combo, int key)
{
    const int index = combo->findData(key);
    ASSERT_GE(index, 0) << "no item with key " << key;
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}
