#include "OrdersFixture.h"

#include "DemoSeeder.h"
#include "IncomingOrderStatements.h"
#include "OrderRates.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "Statement.h"
#include "TBitBtn.h"
#include "TTaryfyprzewoznikaObj.h"
#include "TfrmAddEditZlecenia_Przych.h"

#include <QDate>

namespace {

using Editor = TfrmAddEditZlecenia_Przych;

QVariant columnValue(const TZlecenia_przychObj &order, const Column<TZlecenia_przychObj> &column)
{
    return std::visit(
        [&](auto member) {
            using Value = std::remove_cvref_t<decltype(order.*member)>;
            if constexpr (std::is_same_v<Value, DateTime>)
                return QVariant((order.*member).days());
            else
                return QVariant(order.*member);
        },
        column.field);
}

} // namespace

// Every order of the demo company survives being opened and saved without
// a change: what the editor shows is what it writes back. Two columns are
// the editor's own results: a number 0 becomes the next number, and the
// carrier cost of an order with a carrier tariff is priced by the tariff.
TEST_F(OrdersFixture, DemoOrdersComeBackUnchangedFromTheEditor)
{
    DemoSeeder::Options options;
    options.orders = 25;
    options.today = QDate(2024, 6, 14);
    DemoSeeder(db.connection(), options).seed();

    Statement keys(db.connection());
    keys.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH ORDER BY 1"));
    keys.exec();
    std::vector<int> orders;
    for (; !keys.atEnd(); keys.next())
        orders.push_back(keys.integer(0));
    keys.close();
    ASSERT_GE(orders.size(), 25u);

    const int distances = db.count(QStringLiteral("ODLEGLOSCI"));
    for (int key : orders) {
        const TZlecenia_przychObj before = IncomingOrderStatements::load(db.connection(), key);
        auto editor = TfrmRODefault::create<Editor>(nullptr, key, Editor::Edit);
        editor->btnOk->click();
        ASSERT_EQ(editor->result(), TfrmRODefault::mrOk) << "order " << key;
        TZlecenia_przychObj after = IncomingOrderStatements::load(db.connection(), key);
        if (before.NUMER == 0) {
            EXPECT_GT(after.NUMER, 0);
            after.NUMER = 0;
        }
        if (before.IDTARYFYKOSZT != 0) {
            const TTaryfyprzewoznikaObj tariff
                = TTaryfyprzewoznikaObj(db.connection()).SelectById(before.IDTARYFYKOSZT);
            const double priced = OrderRates::priced(
                {before.KM_LADOWNE, before.KM_PUSTE, before.ILOSC_GODZIN, before.PALETYILOSC},
                {tariff.KWOTA_ZA_KM_LAD, tariff.KWOTA_ZA_KM, tariff.KWOTA_ZA_GODZ,
                 tariff.KWOTA_ZA_PALETE});
            EXPECT_DOUBLE_EQ(after.KOSZTRAZEM, priced) << "order " << key;
            after.KOSZTRAZEM = before.KOSZTRAZEM;
        }
        for (const auto &column : TZlecenia_przychObj::description().columns) {
            EXPECT_EQ(columnValue(after, column), columnValue(before, column))
                << "order " << key << ", column " << column.name.toStdString();
        }
    }
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_GE(db.count(QStringLiteral("ODLEGLOSCI")), distances);
}
