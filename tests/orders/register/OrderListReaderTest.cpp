#include "DbError.h"
#include "EngineRows.h"
#include "Format.h"
#include "OrderListColumns.h"
#include "OrderListQuery.h"
#include "OrderListReader.h"
#include "RowTexts.h"
#include "Statement.h"
#include "TZlecenia_przychObj.h"
#include "TestData.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>

namespace {

using namespace TestData;

class OrderListReaderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Connection &c = db.connection();
        client = addContractor(c, QStringLiteral("KLIENT-X"));
        carrier = addContractor(c, QStringLiteral("Spedpol"));
        krakow = addCity(c, {.name = QStringLiteral("Kraków")});
        lodz = addCity(c, {.name = QStringLiteral("Łódź")});
        gdansk = addCity(c, {.name = QStringLiteral("Gdańsk")});
        user = addUser(c, {.login = QStringLiteral("admin")});
        filter = addFilter(c, QStringLiteral("Zięba"));
        db.exec(QStringLiteral("INSERT INTO FAKTURY (ID_FAKTURY, NR_KOLEJNY) VALUES (900, 12)"));
    }

    int addOrder(const std::function<void(TZlecenia_przychObj &)> &fill)
    {
        TZlecenia_przychObj order(db.connection());
        fill(order);
        order.Insert();
        return order.GetMaxId();
    }

    struct Listed : OrderListRow
    {
        QStringList texts;
    };

    // Every row the register's statement lists for March 2026, by key.
    std::map<int, Listed> listed()
    {
        OrderListFilter march;
        march.from = QDate(2026, 3, 1);
        march.to = QDate(2026, 3, 31);
        Statement st(db.connection());
        OrderListQuery::prepare(st, march);
        EngineRows orders(st);
        const OrderListReader reader(orders);
        std::map<int, Listed> rows;
        RowTexts texts;
        while (orders.next()) {
            Listed row{reader.read(texts), {}};
            for (int i = 0; i < texts.cells(); ++i)
                row.texts << texts.cell(i).toString();
            rows.emplace(row.key, row);
        }
        return rows;
    }

    static QString amount(const char *text)
    {
        return QString::fromUtf8(text).replace(u' ', Format::ThousandSeparator);
    }

    TestDatabase db;
    int client = 0, carrier = 0, krakow = 0, lodz = 0, gdansk = 0, user = 0, filter = 0;
};

} // namespace

TEST_F(OrderListReaderTest, ReadsEveryColumnOfAnOrderInListOrder)
{
    const int key = addOrder([&](TZlecenia_przychObj &o) {
        o.NUMER = 42;
        o.IDKONTRAHENTA = client;
        o.IDPRZEWOZNIK = carrier;
        o.KIEROWCA = QStringLiteral("Jan Wąs");
        o.NUMER_OBCY = QStringLiteral("ZK/7");
        o.DATA = DateTime::fromDate(QDate(2026, 3, 9));
        o.IDMIASTO_OD = krakow;
        o.IDMIASTO_VIA = lodz;
        o.IDMIASTO_DO = gdansk;
        o.IDFAKTURY = 900;
        o.NR_KARTY = 31;
        o.NR_LISTU = 7;
        o.POJAZD = QStringLiteral("EL 12345");
        o.NUMER_FAKT_PRZEW = QStringLiteral("FV/1/2026");
        o.KOSZTRAZEM = 800.5;
        // An agreed amount counts rounded to a whole number, whatever the rates.
        o.KWOTA = 999.56;
        o.KM_LADOWNE = 100;
        o.STAWKA_KMLAD = 2.0;
        o.KWOTA_FAKT_PRZEW = 984.615;
        o.IDUSER = user;
        o.FILTR1 = filter;
    });
    const Listed row = listed().at(key);
    EXPECT_EQ(row.texts,
              (QStringList{"00000042", "KLIENT-X", "Spedpol", "Jan Wąs", "ZK/7", "2026-03-09",
                           "Kraków-Łódź-Gdańsk", "00012", "00031", "000007", "EL 12345",
                           "FV/1/2026", "800,5", amount("1 000,00"), "199,50", "984,615",
                           "admin", "Zięba", QString::number(client), QString::number(carrier),
                           QString::number(key)}));
    EXPECT_DOUBLE_EQ(row.revenue, 1000.0);
    EXPECT_FALSE(row.closed);
}

TEST_F(OrderListReaderTest, AnUndatedOrderWithoutAgreedAmountInvoiceOrCardIsPricedFromItsRates)
{
    const int key = addOrder([&](TZlecenia_przychObj &o) {
        o.IDMIASTO_OD = krakow;
        o.IDMIASTO_DO = gdansk;
        o.KWOTA = 0.40;   // reads as 0
        o.KM_LADOWNE = 100;
        o.STAWKA_KMLAD = 1.255;      // 125.50
        o.KM_PUSTE = 10.5;
        o.STAWKA_KMPUSTY = 0.333;    // 3.4965 -> 3.50
        o.ILOSC_GODZIN = 2.5;
        o.STAWKA_GODZINY = 40.002;   // 100.005 -> 100.01
        o.PALETYILOSC = 3;
        o.STAWKA_PALETY = 12.345;    // 37.035 -> 37.04
        o.KOSZTRAZEM = 66.05;
        o.ZAMKNIETE = 1;
    });
    const Listed row = listed().at(key);
    using Col = OrderListColumns::Column;
    EXPECT_EQ(row.texts[Col::DataZaladunku], "");
    EXPECT_EQ(row.texts[Col::Trasa], "Kraków--Gdańsk");
    EXPECT_EQ(row.texts[Col::Faktura], "-");
    EXPECT_EQ(row.texts[Col::NrKarty], "00000");
    EXPECT_EQ(row.texts[Col::NrListu], "000000");
    EXPECT_EQ(row.texts[Col::Przychod], "266,05");
    EXPECT_EQ(row.texts[Col::Roznica], "200,00");
    EXPECT_DOUBLE_EQ(row.revenue, 266.05);
    EXPECT_TRUE(row.closed);
}

TEST_F(OrderListReaderTest, AStatementWithoutTheRegistersColumnsIsRefusedAtOnce)
{
    Statement st(db.connection());
    st.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH"));
    const EngineRows rows(st);
    try {
        const OrderListReader reader(rows);
        ADD_FAILURE() << "no error";
    } catch (const DbError &error) {
        EXPECT_EQ(error.message(), QStringLiteral("Brak kolumny NUMER w liście zleceń."));
    }
}
