#include "OrdersFixture.h"

#include "IncomingOrderStatements.h"
#include "Typing.h"

#include <QApplication>
#include <QTest>

#include <algorithm>

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
    QElapsedTimer &typed = m_typedInto[combo];
    if (typed.isValid()) {
        const qint64 pause = QApplication::keyboardInputInterval() + 50 - typed.elapsed();
        QTest::qWait(static_cast<int>(std::max<qint64>(pause, 0)));
    }
    combo->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), combo);
    Typing::keys(combo->itemText(index).section(u' ', 0, 0));
    typed.start();
    ASSERT_EQ(combo->currentIndex(), index) << combo->itemText(index).toStdString();
}
