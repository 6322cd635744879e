// The statements of the statements menu as they are laid out on their pages.
#include "EngineRows.h"
#include "MonthlyChart.h"
#include "OrderListReader.h"
#include "PeriodOrders.h"
#include "ReportTexts.h"
#include "ReportsFixture.h"
#include "RowTexts.h"
#include "Statement.h"
#include "TfrmPrintObrotyNaUseraFakt.h"
#include "TfrmPrintObrotyNaUseraFaktObca.h"
#include "TfrmPrintObrotyNaUseraZagr.h"
#include "TfrmZestawienieKontrahenta.h"
#include "TfrmZestawieniePrzewoznika.h"
#include "TfrmZestawienieRoznicStawek2.h"
#include "UserCarrierInvoiceStatement.h"

#include <map>

namespace {

const QChar Nbsp(0x00a0);

QString amount(const char *text)
{
    return QString::fromUtf8(text).replace(u' ', Nbsp);
}

QStringList printed(StatementReport &statement)
{
    return ReportTexts::printed(statement.report().prepare());
}

testing::AssertionResult inOrder(const QStringList &texts, const QStringList &expected)
{
    if (ReportTexts::inOrder(texts, expected))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "expected in order: " << expected.join(u'|').toStdString()
                                       << "\nprinted: " << texts.join(u'|').toStdString();
}

} // namespace

using Statements = ReportsFixture;

TEST_F(Statements, ClientsGoByProfitLargestFirstWithTheirTotalsAndTheGrandTotal)
{
    seedCompany();
    TfrmZestawienieKontrahenta statement(db.connection(), march(), 0);
    const QStringList texts = printed(statement);

    EXPECT_EQ(statement.report().title(),
              "Kwoty dla kontrahenta - przychód, zysk od 2026-03-01 do 2026-03-31");
    EXPECT_TRUE(inOrder(texts, {Company, statement.report().title(), "Numer", "Data załad.",
                                "Trasa", "Przychód", "Koszt", "Zysk", "Marża"}));
    // BETA earned 1 000, ALFA 269,50, GAMMA lost 100.
    EXPECT_TRUE(inOrder(texts, {"Kontrahent: BETA", "00000003", "2026-03-10", "Gdańsk - Kraków",
                                amount("3 000,00"), amount("2 000,00"), amount("1 000,00"),
                                "50,0 %", "Razem (pozycji: 1):",
                                "Kontrahent: ALFA", "00000001", amount("1 235,00"),
                                "00000002", "Gdańsk - Toruń - Kraków", "234,50", "34,50",
                                "Razem (pozycji: 2):", amount("1 469,50"), amount("1 200,00"),
                                "269,50", "22,5 %", "Kontrahent: GAMMA", "-100,00",
                                "-16,7 %", "Ogółem (pozycji: 4):", amount("4 969,50"),
                                amount("3 800,00"), amount("1 169,50"), "30,8 %",
                                "Strona 1 z 1"}));
    EXPECT_FALSE(texts.contains("00000005"));
    EXPECT_FALSE(texts.contains("00000006"));
}

TEST_F(Statements, RevenueIsTheRegistersForTheSameOrders)
{
    seedCompany();
    Statement st(db.connection());
    st.add(QStringLiteral("SELECT * FROM VZLECENIA_PRZYCH"));
    EngineRows orders(st);
    const OrderListReader reader(orders);
    std::map<QString, double> registerRevenue;
    RowTexts texts;
    while (orders.next()) {
        const OrderListRow row = reader.read(texts);
        registerRevenue[texts.cell(0).toString()] = row.revenue;
    }
    TfrmZestawienieKontrahenta statement(db.connection(), {QDate(2026, 1, 1), QDate(2026, 12, 31)},
                                         0);
    statement.report().prepare();
    ASSERT_EQ(statement.data().lines.size(), registerRevenue.size());
    for (const StatementLine &line : statement.data().lines) {
        const QString number = line.values.at(ClientProfitStatement::Number).toString();
        EXPECT_EQ(line.values.at(ClientProfitStatement::Revenue).toDouble(),
                  registerRevenue.at(number))
            << number.toStdString();
    }
}

TEST_F(Statements, PeriodOrdersGoByDayNumberAndKeyWithTheNamesOfTheirKeys)
{
    // Inserted out of order; the second number 7 repeats on purpose.
    const auto day = [](int month, int day) { return QDate(2026, month, day); };
    const int late = addStatementOrder({.number = 2, .day = day(3, 9), .client = alfa});
    const int sevenA = addStatementOrder({.number = 7, .day = day(3, 8), .client = beta,
                                          .carrier = transX, .user = anna});
    const int sevenB = addStatementOrder({.number = 7, .day = day(3, 8), .client = 999999});
    const int five = addStatementOrder({.number = 5, .day = day(3, 8), .client = alfa});
    const std::vector<PeriodOrder> orders
        = PeriodOrders{march(), PeriodOrders::Anyone, 0}.read(db.connection());

    std::vector<int> keys;
    for (const PeriodOrder &o : orders)
        keys.push_back(o.key);
    EXPECT_EQ(keys, (std::vector<int>{five, sevenA, sevenB, late}));
    EXPECT_EQ(orders[1].clientName, QStringLiteral("BETA"));
    EXPECT_EQ(orders[1].carrierName, QStringLiteral("TRANS-X"));
    EXPECT_EQ(orders[1].userName, QStringLiteral("anna"));
    EXPECT_EQ(orders[1].route, QStringLiteral("Gdańsk - Kraków"));
    EXPECT_EQ(orders[3].route, QStringLiteral("Gdańsk - Toruń - Kraków"));
    // A key with no row names nobody, as an outer join would.
    EXPECT_EQ(orders[2].clientName, QString());
    EXPECT_EQ(orders[2].carrierName, QString());

    const std::vector<PeriodOrder> alfas
        = PeriodOrders{march(), PeriodOrders::Client, alfa}.read(db.connection());
    ASSERT_EQ(alfas.size(), 2u);
    EXPECT_EQ(alfas[0].key, five);
}

TEST_F(Statements, CarriersGoByNameWithTheInvoiceAgainstTheCostAndMissingInvoicesMarked)
{
    seedCompany();
    TfrmZestawieniePrzewoznika statement(db.connection(), march(), 0);
    const QStringList texts = printed(statement);

    EXPECT_EQ(statement.report().pageSetup().orientation, QPageLayout::Landscape);
    EXPECT_TRUE(inOrder(texts, {"Kwota stawki na przewoźnika - koszt od 2026-03-01 do 2026-03-31",
                                "Numer", "Zleceniodawca", "Koszt", "Faktura przewoźnika",
                                "Kwota faktury", "Różnica", "Uwagi"}));
    EXPECT_TRUE(inOrder(texts, {"Przewoźnik: CARGO-Y", "00000003", "BETA", amount("2 000,00"),
                                "CY/7", amount("2 100,00"), "100,00", "Razem (pozycji: 1):",
                                "Przewoźnik: TRANS-X", "00000001", "TX/1", amount("1 000,00"),
                                "0,00", "00000002", "200,00", "brak faktury",
                                "Razem (pozycji: 2):", amount("1 200,00"), amount("1 000,00"),
                                "0,00", "Przewoźnik: ŻURAW", "00000004", "ZW/1", "100,00",
                                "-500,00", "Ogółem (pozycji: 4):", amount("3 800,00"),
                                amount("3 200,00"), "-400,00"}));
}

TEST_F(Statements, DispatchersTurnoverGoesMonthByMonthAndEndsWithTheChart)
{
    seedCompany();
    TfrmPrintObrotyNaUseraZagr statement(db.connection(), {QDate(2026, 2, 1), QDate(2026, 3, 31)},
                                         0);
    const std::vector<ReportPage> &pages = statement.report().prepare();
    const QStringList texts = ReportTexts::printed(pages);

    EXPECT_TRUE(inOrder(texts, {"Zestawienie stawek na spedytora\\dysponenta od 2026-02-01 do "
                                "2026-03-31",
                                "Miesiąc", "Liczba zleceń", "Przychód", "Koszt", "Zysk",
                                "Marża"}));
    EXPECT_TRUE(inOrder(texts, {"Spedytor: anna", "2026-02", "1", "800,00", "500,00", "300,00",
                                "60,0 %", "2026-03", "2", amount("4 235,00"),
                                amount("3 000,00"), amount("1 235,00"), "Razem (pozycji: 2):",
                                "3", amount("5 035,00"), amount("3 500,00"),
                                amount("1 535,00"), "Spedytor: bartek", "2026-03", "2",
                                "734,50", "800,00", "-65,50", "-8,2 %", "Ogółem (pozycji: 3):",
                                "5", amount("5 769,50"), amount("4 300,00"),
                                amount("1 469,50"), "34,2 %"}));
    EXPECT_FALSE(texts.contains("Spedytor: celina"));

    const std::vector<const ReportDrawingItem *> charts = pages.back().drawings();
    ASSERT_EQ(charts.size(), 1u);
    const auto *chart = dynamic_cast<const MonthlyChart *>(charts[0]->drawing.get());
    ASSERT_NE(chart, nullptr);
    ASSERT_EQ(chart->months().size(), 2u);
    EXPECT_EQ(chart->months()[0].month, QDate(2026, 2, 1));
    EXPECT_DOUBLE_EQ(chart->months()[0].profit(), 300.0);
    EXPECT_DOUBLE_EQ(chart->months()[1].revenue, 4969.5);
    EXPECT_DOUBLE_EQ(chart->months()[1].cost, 3800.0);
    EXPECT_EQ(chart->description(),
              QStringLiteral("Przychód, koszt i zysk w miesiącach: 2026-02 800,00 / 500,00 / "
                             "300,00; 2026-03 4\u00a0969,50 / 3\u00a0800,00 / 1\u00a0169,50"));
    // The chart lies within the page, under the grand total.
    EXPECT_LT(charts[0]->rectMm.bottom(), pages.back().sizeMm.height() - 10);
}

TEST_F(Statements, InvoicedTurnoverTakesTheDomesticInvoicesAmountsAsTheInvoicePrintsThem)
{
    seedCompany();
    TfrmPrintObrotyNaUseraFakt statement(db.connection(), march(), 0);
    const QStringList texts = printed(statement);
    EXPECT_TRUE(inOrder(texts, {"Numer faktury", "Data wyst.", "Kontrahent", "Netto", "VAT",
                                "Brutto", "Wystawił: anna", "001/03/2026", "2026-03-05", "ALFA",
                                amount("1 255,01"), "288,65", amount("1 543,66"),
                                "Wystawił: bartek", "002/03/2026", amount("3 000,00"), "690,00",
                                amount("3 690,00"), "Ogółem (pozycji: 2):", amount("4 255,01"),
                                "978,65", amount("5 233,66")}));
    EXPECT_FALSE(texts.contains("K/03/2026"));
    EXPECT_FALSE(texts.contains("001/04/2026"));
}

TEST_F(Statements, CarrierInvoicesOfADispatcherShowWhatRemainsAndHowLate)
{
    seedCompany();
    const StatementData data
        = UserCarrierInvoiceStatement::read(db.connection(), march(), 0, QDate(2026, 4, 1));
    ASSERT_EQ(data.lines.size(), 3u);
    using C = UserCarrierInvoiceStatement::Column;
    // anna: TX/1 paid in full, CY/7 with 1 500 left, due 19 March.
    EXPECT_EQ(data.lines[0].group, "anna");
    EXPECT_EQ(data.lines[0].values.at(C::Number).toString(), "TX/1");
    EXPECT_DOUBLE_EQ(data.lines[0].values.at(C::Remaining).toDouble(), 0.0);
    EXPECT_EQ(data.lines[0].values.at(C::DaysOverdue).toString(), "");
    EXPECT_EQ(data.lines[1].values.at(C::Due).toString(), "2026-03-19");
    EXPECT_DOUBLE_EQ(data.lines[1].values.at(C::Paid).toDouble(), 600.0);
    EXPECT_DOUBLE_EQ(data.lines[1].values.at(C::Remaining).toDouble(), 1500.0);
    EXPECT_EQ(data.lines[1].values.at(C::DaysOverdue).toString(), "13");
    // bartek: ZW/1 due 8 April, not late yet.
    EXPECT_EQ(data.lines[2].group, "bartek");
    EXPECT_EQ(data.lines[2].values.at(C::DaysOverdue).toString(), "");

    TfrmPrintObrotyNaUseraFaktObca statement(db.connection(), march(), anna);
    const QStringList texts = printed(statement);
    EXPECT_TRUE(inOrder(texts, {"Spedytor: anna", "TX/1", "CY/7", "Razem (pozycji: 2):",
                                amount("3 100,00"), amount("1 600,00"), amount("1 500,00"),
                                "Ogółem (pozycji: 2):"}));
    EXPECT_FALSE(texts.contains("ZW/1"));
}

TEST_F(Statements, RateDifferencesPutOurInvoiceAgainstTheCarriersAndTheOwnFleetApart)
{
    seedCompany();
    // 001/03/2026 invoices orders 1 and 2, its positions naming them;
    // 002/03/2026 invoices order 3 alone, its position naming none; 003/03/2026
    // invoices order 4, carried by the company itself.
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY = 1 WHERE NUMER IN (1, 2)"));
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY = 2 WHERE NUMER = 3"));
    db.exec(QStringLiteral("UPDATE FAKTURY_POZYCJE SET ID_ZLECENIA = "
                           "(SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH WHERE NUMER = 1) "
                           "WHERE ID_FAKTURY = 1 AND ILOSC = 1"));
    db.exec(QStringLiteral("UPDATE FAKTURY_POZYCJE SET ID_ZLECENIA = "
                           "(SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH WHERE NUMER = 2) "
                           "WHERE ID_FAKTURY = 1 AND ILOSC = 2"));
    const int late = addInvoice({.number = QStringLiteral("003/03/2026"), .client = gamma,
                                 .issued = QDate(2026, 3, 28), .user = anna,
                                 .lines = {{.price = 500.0}}});
    db.exec(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY = %1 WHERE NUMER = 4")
                .arg(late));

    TfrmZestawienieRoznicStawek2 statement(db.connection(), march());
    const QStringList texts = printed(statement);
    EXPECT_EQ(statement.report().pageSetup().orientation, QPageLayout::Landscape);
    EXPECT_TRUE(inOrder(
        texts, {"Faktury przewożnika i własne od 2026-03-01 do 2026-03-31", "Zlecenie",
                "Przewoźnik", "Faktura", "Netto faktury", "Faktura przewoźnika",
                "Kwota przewoźnika", "Różnica", "Marża", "Wykonawca: przewoźnicy obcy",
                "00000001", "TRANS-X", "001/03/2026", amount("1 235,00"), "TX/1",
                amount("1 000,00"), "235,00", "23,5 %", "00000002", "20,01", "0,00", "20,01",
                "-", "00000003", "CARGO-Y", "002/03/2026", amount("3 000,00"), "CY/7",
                amount("2 100,00"), "900,00", "42,9 %", "Razem (pozycji: 3):",
                amount("4 255,01"), amount("3 100,00"), amount("1 155,01"), "37,3 %",
                "Wykonawca: wykonawca własny", "00000004", "ŻURAW", "003/03/2026", "500,00",
                "ZW/1", "100,00", "400,00", "400,0 %", "Ogółem (pozycji: 4):",
                amount("4 755,01"), amount("3 200,00"), amount("1 555,01")}));
}

TEST_F(Statements, AnEmptyPeriodPrintsTheHeadsAndZeroTotals)
{
    seedCompany();
    const ReportPeriod empty{QDate(2025, 1, 1), QDate(2025, 1, 31)};
    TfrmZestawienieKontrahenta clients(db.connection(), empty, 0);
    TfrmZestawieniePrzewoznika carriers(db.connection(), empty, 0);
    TfrmPrintObrotyNaUseraZagr rates(db.connection(), empty, 0);
    TfrmPrintObrotyNaUseraFakt invoices(db.connection(), empty, 0);
    TfrmPrintObrotyNaUseraFaktObca carrierInvoices(db.connection(), empty, 0);
    TfrmZestawienieRoznicStawek2 differences(db.connection(), empty);
    for (StatementReport *statement : std::initializer_list<StatementReport *>{
             &clients, &carriers, &rates, &invoices, &carrierInvoices, &differences}) {
        const std::vector<ReportPage> &pages = statement->report().prepare();
        ASSERT_EQ(pages.size(), 1u) << statement->report().title().toStdString();
        const QStringList texts = ReportTexts::printed(pages);
        EXPECT_TRUE(inOrder(texts, {Company, statement->report().title(),
                                    QString::fromUtf8(statement->layout().columns[0].caption),
                                    "Ogółem (pozycji: 0):", "0,00", "Strona 1 z 1"}));
    }
}

TEST_F(Statements, ManyOrdersGoOnOverPagesAndTheTotalsStillAddUp)
{
    for (int i = 1; i <= 90; ++i) {
        addStatementOrder({.number = i, .day = QDate(2026, 3, 1 + i % 28),
                           .client = i % 3 ? alfa : beta, .carrier = transX, .user = anna,
                           .amount = 100.0 + i, .cost = 50.0});
    }
    TfrmZestawienieKontrahenta statement(db.connection(), march(), 0);
    const std::vector<ReportPage> &pages = statement.report().prepare();
    ASSERT_GE(pages.size(), 3u);
    EXPECT_TRUE(pages[1].containsText("Przychód"));
    EXPECT_TRUE(pages[1].texts().filter("Kontrahent: ").size() >= 1);
    EXPECT_TRUE(pages.back().containsText(QStringLiteral("Strona %1 z %1").arg(pages.size())));
    // Revenue 100 + i for i = 1..90: 9 000 + 4 095; cost 90 x 50.
    const QStringList texts = ReportTexts::printed(pages);
    EXPECT_TRUE(inOrder(texts, {"Ogółem (pozycji: 90):", amount("13 095,00"),
                                amount("4 500,00"), amount("8 595,00")}));
}
