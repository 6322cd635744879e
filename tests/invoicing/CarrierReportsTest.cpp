// The carriers' invoice lists as they are laid out on their pages.
#include "CarrierInvoiceList.h"
#include "CarrierInvoicesFixture.h"
#include "InvoicingFixture.h"
#include "TFrmNiezaplaconeList.h"
#include "TFrmNiezaplaconePrzewoz.h"

namespace {

using Mode = CarrierInvoiceList::Mode;

QStringList printed(Report &report)
{
    return InvoicingFixture::printed(report.prepare());
}

testing::AssertionResult inOrder(const QStringList &texts, const QStringList &expected)
{
    return InvoicingFixture::inOrder(texts, expected);
}

} // namespace

class CarrierReports : public CarrierInvoicesFixture
{
protected:
    CarrierInvoiceList paidInMarch() const
    {
        CarrierInvoiceList list;
        list.mode = Mode::Paid;
        list.from = QDate(2026, 3, 1);
        list.to = QDate(2026, 3, 31);
        return list;
    }

    // Paid in March: Alfa late and in time, Beta in time; issued 1 March
    // with 14 days, so due 15 March.
    void paidInvoices()
    {
        const auto paid = [this](int carrier, const char *number, double amount, QDate on) {
            addInvoice({.carrier = carrier, .number = number, .amount = amount,
                        .issued = QDate(2026, 3, 1), .paymentDate = on, .paid = true});
        };
        paid(Beta, "B-1", 2000.5, QDate(2026, 3, 10));
        paid(Alfa, "A-LATE", 1000.25, QDate(2026, 3, 20));
        db.exec(QStringLiteral(
            "UPDATE ZLECENIA_PRZYCH SET NUMER=11 WHERE NUMER_FAKT_PRZEW='A-LATE'"));
        paid(Alfa, "A-TIME", 500.0, QDate(2026, 3, 15));
    }
};

TEST_F(CarrierReports, EachCarrierHasItsGroupAndTotalAndTheListItsGrandTotal)
{
    paidInvoices();
    TFrmNiezaplaconePrzewoz list(db.connection(), paidInMarch());
    const QStringList texts = printed(list.qrNiezaplacone());

    const QString title = " Faktury przewoźników zapłacone od 2026-03-01 do dnia 2026-03-31";
    EXPECT_EQ(list.qrNiezaplacone().title(), title);
    EXPECT_TRUE(inOrder(texts, {Company, title, "Dotyczy zlecenia", "Numer Faktury",
                                " Data otrzymania", "Data  Wystawienia", "Termin Płatności",
                                "Zapłacono Dnia", "Kwota do zapłaty Brutto w zł",
                                "Ilość dni spóźnienia"}));
    // Alfa Trans before Beta Cargo, each with its own total.
    EXPECT_TRUE(inOrder(texts, {"ALFA TRANS ; Gdańsk  ul. Długa 1", "RAZEM ZŁ:", "1\u00a0500,25",
                                "BETA CARGO ; Poznań  ul. Kupiecka 4", "B-1", "2\u00a0000,50",
                                "RAZEM ZŁ:", "2\u00a0000,50", "Ogólem :", "3\u00a0500,75"}));
    // The late one: its order, dates, amount and days late, in the columns' order.
    EXPECT_TRUE(inOrder(texts, {"11", "A-LATE", "2026-03-01", "2026-03-01", "2026-03-15",
                                "2026-03-20", "1\u00a0000,25", "5"}));
    EXPECT_EQ(texts.count("RAZEM ZŁ:"), 2);
    EXPECT_TRUE(texts.contains("Strona 1 z 1"));
}

TEST_F(CarrierReports, ManyInvoicesGoOnOverPagesWithTheTotalsRight)
{
    for (int i = 1; i <= 70; ++i) {
        addInvoice({.carrier = i % 2 == 0 ? Alfa : Beta, .orderNumber = i,
                    .number = QStringLiteral("FV %1").arg(i), .amount = 10.0 * i,
                    .issued = QDate(2026, 3, 1)});
    }
    CarrierInvoiceList unpaid;
    TFrmNiezaplaconePrzewoz list(db.connection(), unpaid);
    const std::vector<ReportPage> &pages = list.qrNiezaplacone().prepare();
    ASSERT_GE(pages.size(), 2u);
    EXPECT_TRUE(pages.back().containsText(QStringLiteral("Strona %1 z %1").arg(pages.size())));
    // The second page carries the column heads and the carrier it goes on with.
    EXPECT_TRUE(pages[1].containsText("Numer Faktury"));
    EXPECT_TRUE(pages[1].texts().filter(" ; ").size() >= 1);
    EXPECT_FALSE(pages[1].containsText(Company));
    const QStringList texts = InvoicingFixture::printed(pages);
    // Alfa: 20 + 40 + ... + 700; Beta: 10 + 30 + ... + 690; both 35 rows.
    EXPECT_TRUE(inOrder(texts, {"RAZEM ZŁ:", "12\u00a0600,00", "RAZEM ZŁ:", "12\u00a0250,00",
                                "Ogólem :", "24\u00a0850,00"}));
}

TEST_F(CarrierReports, ThePaymentListGoesByPaymentDateWithWhatRemains)
{
    const QDate march1(2026, 3, 1);
    addInvoice({.carrier = Beta, .orderNumber = 2, .number = "B-9", .amount = 900.0,
                .issued = march1, .paymentDate = QDate(2026, 3, 20), .paidAmount = 400.0});
    addInvoice({.carrier = Alfa, .orderNumber = 1, .number = "A-5", .amount = 250.5,
                .issued = march1, .paymentDate = QDate(2026, 3, 8)});
    addInvoice({.carrier = Alfa, .number = "PAID", .amount = 99.0, .issued = march1,
                .paymentDate = QDate(2026, 3, 2), .paid = true});
    TFrmNiezaplaconeList list(db.connection());
    const QStringList texts = printed(list.qrNiezaplaconeList());

    EXPECT_EQ(list.qrNiezaplaconeList().title(), " Faktury przewoźników niezapłacone ");
    EXPECT_TRUE(inOrder(texts, {Company, " Faktury przewoźników niezapłacone ", " Data otrzy.",
                                "Data  Wyst.", "Przewoźnik", "Kwota do zapłaty  w zł",
                                "Zapłacono Brutto w zł", "Pozostało do zapłaty", "Sp. dni"}));
    EXPECT_TRUE(inOrder(texts, {"A-5", "ALFA TRANS", "250,50", "0,00", "250,50", "B-9",
                                "BETA CARGO", "900,00", "400,00", "500,00", "RAZEM ZŁ:",
                                "1\u00a0150,50"}));
    EXPECT_FALSE(texts.contains("PAID"));
    EXPECT_EQ(list.qrNiezaplaconeList().pageSetup().orientation, QPageLayout::Landscape);
}
