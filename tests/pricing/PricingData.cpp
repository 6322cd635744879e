#include "PricingData.h"

#include "Distances.h"
#include "Statement.h"
#include "TCenniki_krajObj.h"
#include "TCenniki_kraj_grupyObj.h"
#include "TCenniki_kraj_kolumnyObj.h"
#include "TCenniki_kraj_wierszeObj.h"
#include "TMiastaObj.h"
#include "TTaryfyprzewoznikaObj.h"

namespace {

int lastKey(Connection &connection, const QString &table, const QString &key)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT MAX(%1) FROM %2").arg(key, table));
    st.exec();
    return st.integer(0);
}

} // namespace

int PricingData::addKilometreRange(Connection &connection, int from, int to)
{
    TCenniki_kraj_wierszeObj range(connection);
    range.ZAKRES_WOD = from;
    range.ZAKRES_WDO = to;
    range.Insert();
    return range.GetMaxId();
}

int PricingData::addKilogramRange(Connection &connection, int from, int to)
{
    TCenniki_kraj_kolumnyObj range(connection);
    range.ZAKRES_KOD = from;
    range.ZAKRES_KDO = to;
    range.Insert();
    return range.GetMaxId();
}

int PricingData::addGroup(Connection &connection, const QString &name, bool blocked)
{
    TCenniki_kraj_grupyObj group(connection);
    group.NAZWA = name;
    group.BLOKADA = blocked ? 1 : 0;
    group.Insert();
    return group.GetMaxId();
}

void PricingData::addCell(Connection &connection, int group, int kilometreRange,
                          int kilogramRange, double amount)
{
    TCenniki_krajObj cell(connection);
    cell.GRUPA = group;
    cell.KILOMETRY = kilometreRange;
    cell.KILOGRAMY = kilogramRange;
    cell.KWOTA = amount;
    cell.Insert();
}

int PricingData::addTariff(Connection &connection, const QString &name, int kind,
                           double perTonne, double perKilometre, double perHour, double perPallet)
{
    TTaryfyprzewoznikaObj tariff(connection);
    tariff.NAZWA_STAWKI = name;
    tariff.TARYFAWLASNA = kind;
    tariff.KWOTA_ZA_KM = perTonne;
    tariff.KWOTA_ZA_KM_LAD = perKilometre;
    tariff.KWOTA_ZA_GODZ = perHour;
    tariff.KWOTA_ZA_PALETE = perPallet;
    tariff.Insert();
    return lastKey(connection, QStringLiteral("TARYFYPRZEWOZNIKA"),
                   QStringLiteral("ID_TARYFYPRZEWOZNIKA"));
}

int PricingData::addCity(Connection &connection, const QString &name, const QString &postcode)
{
    TMiastaObj city(connection);
    city.NAZWA = name;
    city.KOD = postcode;
    city.Insert();
    return lastKey(connection, QStringLiteral("MIASTA"), QStringLiteral("ID_MIASTA"));
}

int PricingData::addRoute(Connection &connection, int from, int via, int to, int kilometres)
{
    Distances::remember(connection, from, via, to, kilometres);
    return lastKey(connection, QStringLiteral("ODLEGLOSCI"), QStringLiteral("ID_ODLEGLOSCI"));
}
