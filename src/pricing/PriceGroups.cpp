#include "PriceGroups.h"

#include "Statement.h"
#include "TCenniki_kraj_grupyObj.h"

namespace {

PriceGroup fromRecord(const TCenniki_kraj_grupyObj &record)
{
    return {record.ID_CENNIKI_KRAJ_GRUPY, record.NAZWA, record.BLOKADA != 0};
}

} // namespace

std::vector<PriceGroup> PriceGroups::list(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("Select * from CENNIKI_KRAJ_GRUPY order by NAZWA"));
    st.exec();
    const int key = st.columnIndex(QStringLiteral("ID_CENNIKI_KRAJ_GRUPY"));
    const int name = st.columnIndex(QStringLiteral("NAZWA"));
    const int blocked = st.columnIndex(QStringLiteral("BLOKADA"));
    std::vector<PriceGroup> groups;
    for (; !st.atEnd(); st.next())
        groups.push_back({st.integer(key), st.string(name), st.integer(blocked) != 0});
    return groups;
}

std::vector<PriceGroup> PriceGroups::unblocked(Connection &connection)
{
    std::vector<PriceGroup> groups;
    for (const TCenniki_kraj_grupyObj &record :
         TCenniki_kraj_grupyObj(connection).SelectClause(QStringLiteral("WHERE BLOKADA=0")))
        groups.push_back(fromRecord(record));
    return groups;
}

PriceGroup PriceGroups::load(Connection &connection, int key)
{
    return fromRecord(TCenniki_kraj_grupyObj(connection).SelectById(key));
}

int PriceGroups::add(Connection &connection, const QString &name, bool blocked)
{
    TCenniki_kraj_grupyObj group(connection);
    group.NAZWA = name;
    group.BLOKADA = blocked ? 1 : 0;
    group.Insert();
    return group.ID_CENNIKI_KRAJ_GRUPY;
}

void PriceGroups::change(Connection &connection, int key, const QString &name, bool blocked)
{
    TCenniki_kraj_grupyObj group = TCenniki_kraj_grupyObj(connection).SelectById(key);
    if (group.ID_CENNIKI_KRAJ_GRUPY == 0)
        return;
    group.NAZWA = name;
    group.BLOKADA = blocked ? 1 : 0;
    group.Update();
}

void PriceGroups::remove(Connection &connection, int key)
{
    TCenniki_kraj_grupyObj group(connection);
    group.ID_CENNIKI_KRAJ_GRUPY = key;
    group.Delete();
}

int PriceGroups::usage(Connection &connection, int key)
{
    Statement st(connection);
    st.add(QStringLiteral("select count(*) as ilosc from CENNIKI_KRAJ where IDGRUPY=")
           + QString::number(key));
    st.exec();
    return st.integer(QStringLiteral("ILOSC"));
}
