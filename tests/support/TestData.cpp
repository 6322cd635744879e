#include "TestData.h"

#include "Statement.h"
#include "TCenniki_krajObj.h"
#include "TCenniki_kraj_grupyObj.h"
#include "TCenniki_kraj_kolumnyObj.h"
#include "TCenniki_kraj_wierszeObj.h"
#include "TKontrahenciObj.h"
#include "TMiaryObj.h"
#include "TMiastaObj.h"
#include "TTaryfyprzewoznikaObj.h"
#include "TUsersObj.h"

namespace TestData {

namespace {

// Inserts the record through its table object and returns its new key.
template <class Record>
int inserted(Record &record)
{
    record.Insert();
    const auto &info = Record::description().info;
    return lastKey(record.connection(), info.table, info.key);
}

} // namespace

int lastKey(Connection &connection, const QString &table, const QString &keyColumn)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT MAX(%1) FROM %2").arg(keyColumn, table));
    st.exec();
    return st.integer(0);
}

int addCity(Connection &connection, const City &city)
{
    TMiastaObj record(connection);
    record.NAZWA = city.name;
    record.KOD = city.postcode;
    record.IDKRAJU = city.country;
    return inserted(record);
}

int addTariff(Connection &connection, const Tariff &tariff)
{
    TTaryfyprzewoznikaObj record(connection);
    record.NAZWA_STAWKI = tariff.name;
    record.TARYFAWLASNA = tariff.own;
    record.KWOTA_ZA_KM = tariff.perTonne;
    record.KWOTA_ZA_KM_LAD = tariff.perLoadedKm;
    record.KWOTA_ZA_GODZ = tariff.perHour;
    record.KWOTA_ZA_PALETE = tariff.perPallet;
    return inserted(record);
}

int addContractor(Connection &connection, const QString &shortName)
{
    TKontrahenciObj record(connection);
    record.SKROT = shortName;
    record.NAZWA = shortName + QStringLiteral(" Sp. z o.o.");
    return inserted(record);
}

int addUnit(Connection &connection, const QString &name)
{
    TMiaryObj record(connection);
    record.NAZWA = name;
    record.SKROT = name.left(3);
    return inserted(record);
}

int addUser(Connection &connection, const User &user)
{
    TUsersObj record(connection);
    record.LOGIN = user.login;
    record.IMIE = user.firstName;
    record.NAZWISKO = user.surname;
    return inserted(record);
}

void addSetting(Connection &connection, const Setting &setting)
{
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT, VALUE_STRING)"));
    st.add(QStringLiteral("VALUES (:aPole, :aTyp, :aInt, :aString)"));
    st.bind(QStringLiteral("aPole"), setting.name);
    st.bind(QStringLiteral("aTyp"), QString(QLatin1Char(setting.type)));
    if (setting.type == 'S') {
        st.bindNull(QStringLiteral("aInt"), QMetaType::fromType<int>());
        st.bind(QStringLiteral("aString"), setting.text);
    } else {
        st.bind(QStringLiteral("aInt"), setting.number);
        st.bindNull(QStringLiteral("aString"), QMetaType::fromType<QString>());
    }
    st.exec();
}

int addFilter(Connection &connection, const QString &text)
{
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO FILTRY_PRZYCH (NR_FILTRA, OPIS) VALUES (1, :aOpis)"));
    st.bind(QStringLiteral("aOpis"), text);
    st.exec();
    return lastKey(connection, QStringLiteral("FILTRY_PRZYCH"),
                   QStringLiteral("ID_FILTRY_PRZYCH"));
}

int addKilometreRange(Connection &connection, int from, int to)
{
    TCenniki_kraj_wierszeObj range(connection);
    range.ZAKRES_WOD = from;
    range.ZAKRES_WDO = to;
    return inserted(range);
}

int addKilogramRange(Connection &connection, int from, int to)
{
    TCenniki_kraj_kolumnyObj range(connection);
    range.ZAKRES_KOD = from;
    range.ZAKRES_KDO = to;
    return inserted(range);
}

int addGroup(Connection &connection, const QString &name, bool blocked)
{
    TCenniki_kraj_grupyObj group(connection);
    group.NAZWA = name;
    group.BLOKADA = blocked ? 1 : 0;
    return inserted(group);
}

void addCell(Connection &connection, const Cell &cell)
{
    TCenniki_krajObj record(connection);
    record.GRUPA = cell.group;
    record.KILOMETRY = cell.row;
    record.KILOGRAMY = cell.column;
    record.KWOTA = cell.amount;
    record.Insert();
}

int addRoute(Connection &connection, const Route &route)
{
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO ODLEGLOSCI"));
    st.add(QStringLiteral("(IDMIASTAOD, IDMIASTAVIA, IDMIASTADO, ODLEGLOSC)"));
    st.add(QStringLiteral("VALUES (:aOd, :aVia, :aDo, :aKm)"));
    st.bind(QStringLiteral("aOd"), route.from);
    st.bind(QStringLiteral("aVia"), route.via);
    st.bind(QStringLiteral("aDo"), route.to);
    st.bind(QStringLiteral("aKm"), route.kilometres);
    st.exec();
    return lastKey(connection, QStringLiteral("ODLEGLOSCI"), QStringLiteral("ID_ODLEGLOSCI"));
}

} // namespace TestData
