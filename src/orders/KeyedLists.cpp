#include "KeyedLists.h"

#include "Statement.h"
#include "TKontrahenciObj.h"
#include "TMiaryObj.h"
#include "TMiastaObj.h"

#include <QCollator>
#include <QComboBox>
#include <QLocale>

#include <algorithm>

namespace KeyedLists {

void fillSorted(QComboBox *combo, std::vector<Entry> entries)
{
    QCollator collator{QLocale(QLocale::Polish, QLocale::Poland)};
    std::stable_sort(entries.begin(), entries.end(), [&](const Entry &a, const Entry &b) {
        return collator.compare(a.text, b.text) < 0;
    });
    combo->clear();
    for (const Entry &entry : entries)
        combo->addItem(entry.text, entry.key);
}

int currentKey(const QComboBox *combo)
{
    return combo->currentIndex() < 0 ? 0 : combo->currentData().toInt();
}

int currentKeyOr(const QComboBox *combo, int fallback)
{
    return combo->currentIndex() < 0 ? fallback : combo->currentData().toInt();
}

bool selectKey(QComboBox *combo, int key)
{
    const int index = combo->findData(key);
    combo->setCurrentIndex(index);
    return index >= 0;
}

std::vector<Entry> contractors(Connection &connection)
{
    std::vector<Entry> entries;
    for (const TKontrahenciObj &contractor : TKontrahenciObj(connection).SelectAll())
        entries.push_back({contractor.SKROT, contractor.ID_KONTRAHENTA});
    return entries;
}

void fillCities(QComboBox *combo, Connection &connection)
{
    std::vector<Entry> entries{{QString(), 0}};
    for (const TMiastaObj &city : TMiastaObj(connection).SelectAll())
        entries.push_back({city.NAZWA, city.ID_MIASTA});
    fillSorted(combo, std::move(entries));
}

void fillFilters(QComboBox *combo, Connection &connection)
{
    combo->clear();
    combo->addItem(QStringLiteral("---"), 0);
    Statement st(connection);
    st.add(QStringLiteral("select * from FILTRY_przych where NR_FILTRA=1 "));
    st.exec();
    const int key = st.columnIndex(QStringLiteral("ID_FILTRY_PRZYCH"));
    const int text = st.columnIndex(QStringLiteral("OPIS"));
    for (; !st.atEnd(); st.next())
        combo->addItem(st.string(text), st.integer(key));
}

void fillUnits(QComboBox *combo, Connection &connection)
{
    combo->clear();
    for (const TMiaryObj &unit : TMiaryObj(connection).SelectAll(QStringLiteral("ID_MIARY")))
        combo->addItem(unit.NAZWA, unit.ID_MIARY);
}

} // namespace KeyedLists
