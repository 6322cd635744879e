#include "OrdersFixture.h"

#include "IncomingOrderStatements.h"
#include "Statement.h"
#include "TKontrahenciObj.h"
#include "TMiaryObj.h"
#include "TMiastaObj.h"
#include "TTaryfyprzewoznikaObj.h"

int OrdersFixture::lastKey(const QString &table, const QString &key)
{
    return db.scalar(QStringLiteral("SELECT MAX(%1) FROM %2").arg(key, table)).toInt();
}

TZlecenia_przychObj OrdersFixture::lastOrder()
{
    return IncomingOrderStatements::load(
        db.connection(),
        lastKey(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("ID_ZLECENIA_PRZYCH")));
}

int OrdersFixture::addContractor(const QString &shortName)
{
    TKontrahenciObj contractor(db.connection());
    contractor.SKROT = shortName;
    contractor.NAZWA = shortName + QStringLiteral(" Sp. z o.o.");
    contractor.Insert();
    return lastKey(QStringLiteral("KONTRAHENCI"), QStringLiteral("ID_KONTRAHENTA"));
}

int OrdersFixture::addCity(const QString &name)
{
    TMiastaObj city(db.connection());
    city.NAZWA = name;
    city.Insert();
    return lastKey(QStringLiteral("MIASTA"), QStringLiteral("ID_MIASTA"));
}

int OrdersFixture::addTariff(const QString &name, int own, double perLoadedKm, double perTonne,
                             double perHour, double perPallet)
{
    TTaryfyprzewoznikaObj tariff(db.connection());
    tariff.NAZWA_STAWKI = name;
    tariff.TARYFAWLASNA = own;
    tariff.KWOTA_ZA_KM_LAD = perLoadedKm;
    tariff.KWOTA_ZA_KM = perTonne;
    tariff.KWOTA_ZA_GODZ = perHour;
    tariff.KWOTA_ZA_PALETE = perPallet;
    tariff.Insert();
    return lastKey(QStringLiteral("TARYFYPRZEWOZNIKA"), QStringLiteral("ID_TARYFYPRZEWOZNIKA"));
}

int OrdersFixture::addUnit(const QString &name)
{
    TMiaryObj unit(db.connection());
    unit.NAZWA = name;
    unit.SKROT = name.left(3);
    unit.Insert();
    return lastKey(QStringLiteral("MIARY"), QStringLiteral("ID_MIARY"));
}

void OrdersFixture::setOwner(int contractorKey)
{
    Statement st(db.connection());
    st.add(QStringLiteral(
        "INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT) VALUES (:aPole, 'I', :aInt)"));
    st.bind(QStringLiteral("aPole"), QStringLiteral("IDWłaściciela"));
    st.bind(QStringLiteral("aInt"), contractorKey);
    st.exec();
}

void OrdersFixture::addFilter(const QString &text)
{
    Statement st(db.connection());
    st.add(QStringLiteral("INSERT INTO FILTRY_PRZYCH (NR_FILTRA, OPIS) VALUES (1, :aOpis)"));
    st.bind(QStringLiteral("aOpis"), text);
    st.exec();
}

void OrdersFixture::choose(QComboBox *combo, int key)
{
    const int index = combo->findData(key);
    ASSERT_GE(index, 0) << "no item with key " << key;
    combo->setCurrentIndex(index);
    Q_EMIT combo->activated(index);
}
