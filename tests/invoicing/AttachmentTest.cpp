#include "InvoicingFixture.h"
#include "PrintoutError.h"
#include "TfrmZalacznik.h"


class AttachmentTest : public InvoicingFixture
{
protected:
    void SetUp() override
    {
        InvoicingFixture::SetUp();
        invoice = addInvoice();
    }

    int addInvoicedOrder(const std::function<void(TZlecenia_przychObj &)> &change)
    {
        return addOrder([&](TZlecenia_przychObj &o) {
            o.IDFAKTURY = invoice;
            change(o);
        });
    }

    const AttachmentRows &rows()
    {
        m_printout = std::make_unique<TfrmZalacznik>(db.connection(), invoice);
        m_pages = m_printout->qrZalacznik().prepare();
        return m_printout->rows();
    }

    int invoice = 0;
    std::unique_ptr<TfrmZalacznik> m_printout;
    std::vector<ReportPage> m_pages;
};

TEST_F(AttachmentTest, OrdersSortByTheirNumberOrRoadCardThenByVehicle)
{
    addInvoicedOrder([](auto &o) { o.NUMER = 5; o.POJAZD = QStringLiteral("WB 2"); });
    addInvoicedOrder([](auto &o) { o.NUMER = 12; o.POJAZD = QStringLiteral("WA 1"); });
    addInvoicedOrder([](auto &o) {
        o.NUMER = 0;
        o.NR_KARTY = 3;
        o.POJAZD = QStringLiteral("WZ 9");
    });
    addInvoicedOrder([](auto &o) { o.NUMER = 5; o.POJAZD = QStringLiteral("WA 7"); });
    const std::vector<AttachmentRow> &list = rows().rows;
    ASSERT_EQ(list.size(), 4u);
    const std::pair<const char *, const char *> expected[] = {
        {"3", "WZ 9"}, {"5", "WA 7"}, {"5", "WB 2"}, {"12", "WA 1"}};
    for (std::size_t i = 0; i < list.size(); ++i) {
        EXPECT_EQ(list[i].number, expected[i].first) << i;
        EXPECT_EQ(list[i].vehicle, expected[i].second) << i;
    }
}

TEST_F(AttachmentTest, QuantitiesAndRatesTwoWithoutHoursThreeWithThemNoneWhenAgreed)
{
    addInvoicedOrder([](auto &o) {
        o.NUMER = 1;
        o.STAWKA_RAZEM = 1410.5;
        o.KM_LADOWNE = 310;
        o.STAWKA_KMLAD = 3.4;
        o.KM_PUSTE = 12.5;
        o.STAWKA_KMPUSTY = 28.5;
    });
    addInvoicedOrder([](auto &o) {
        o.NUMER = 2;
        o.STAWKA_RAZEM = 1600;
        o.KM_LADOWNE = 310;
        o.STAWKA_KMLAD = 3.4;
        o.KM_PUSTE = 1234.5;
        o.STAWKA_KMPUSTY = 28.5;
        o.ILOSC_GODZIN = 3;
        o.STAWKA_GODZINY = 95;
    });
    // An agreed amount hides the rates, whatever they are.
    addInvoicedOrder([](auto &o) {
        o.NUMER = 3;
        o.KWOTA = 1850;
        o.STAWKA_RAZEM = 999;
        o.KM_LADOWNE = 300;
        o.STAWKA_KMLAD = 3.1;
        o.ILOSC_GODZIN = 4;
        o.STAWKA_GODZINY = 90;
    });
    const std::vector<AttachmentRow> &list = rows().rows;
    ASSERT_EQ(list.size(), 3u);
    EXPECT_EQ(list[0].amount, "1410,50");
    EXPECT_EQ(list[0].quantities, "310/12,500");
    EXPECT_EQ(list[0].rates, "3,40/28,50");
    EXPECT_EQ(list[1].quantities, "310/1\u00A0234,500/3");
    EXPECT_EQ(list[1].rates, "3,40/28,50/95,00");
    EXPECT_EQ(list[2].amount, "1850,00");
    EXPECT_EQ(list[2].quantities, "---");
    EXPECT_EQ(list[2].rates, "Umowna");
}

TEST_F(AttachmentTest, LineShowsPlacesDatesFirstGoodsNoteAndStampFee)
{
    const int withGoods = addInvoicedOrder([](auto &o) {
        o.NUMER = 1;
        o.IDMIASTO_VIA = Krakow;
        o.DATA_ROZLADUNKU = DateTime::fromDate(QDate(2026, 7, 7));
        o.DOK_WZ = 5521;
        o.KWOTA = 1000;
        o.OPLATA_SKARBOWA = 17;
    });
    addGoods(withGoods, QStringLiteral("Jabłka w skrzyniach"), 10);
    addGoods(withGoods, QStringLiteral("Gruszki"), 2);
    addInvoicedOrder([](auto &o) { o.NUMER = 2; o.KWOTA = 500; });

    // The first line's cells are read from the page below.
    const AttachmentRow &second = rows().rows.at(1);
    EXPECT_TRUE(second.goods.isEmpty());
    EXPECT_TRUE(second.deliveryNote.isEmpty());
    EXPECT_EQ(second.dates, "2026-07-06");

    const QStringList texts = printed(m_pages);
    EXPECT_TRUE(inOrder(texts, {
        "Zestawienie zbiorcze do rachunku numer :", "007/07/2026",
        "Nr.zlecenia", "Nr.rejestr", "Kwota", "Kilometry", "Stawka", "Miejsce Zał.", "Przez",
        "Miejsce rozł.", "Data załadunku/rozładunku", "Towar", "NrWZ", "Podatek", "Razem",
        "1", "1000,00", "---", "Umowna", "Łódź", "Kraków", "Warszawa", "2026-07-06; 2026-07-07",
        "Jabłka w skrzyniach", "5521", "17,00", "1017,00",
        "2", "500,00",
        "RAZEM:", "1500,00", "17,00", "1517,00",
        "(1)", "Kilometry ładowne/ tony/godziny", "(2)",
        "Stawka za kilometr ładowny/za tonę/za godzinę",
        "Imię, nazwisko i podpis osoby upoważnionej do odbioru faktury",
        "Imię, nazwisko i podpis osoby upoważnionej do wystawienia faktury", "Zatwierdził",
        "Strona 1 z 1"}));
}

TEST_F(AttachmentTest, ManyOrdersRunOverPagesWithTheHeaderOnEach)
{
    for (int i = 1; i <= 60; ++i)
        addInvoicedOrder([i](auto &o) { o.NUMER = i; o.KWOTA = 100; });
    const AttachmentRows &all = rows();
    EXPECT_DOUBLE_EQ(all.total, 6000.0);
    ASSERT_GT(m_pages.size(), 1u);
    for (const ReportPage &page : m_pages) {
        EXPECT_TRUE(page.containsText("Data załadunku/rozładunku")) << page.number;
        EXPECT_TRUE(page.containsText(
            QStringLiteral("Strona %1 z %2").arg(page.number).arg(m_pages.size())));
    }
    EXPECT_TRUE(m_pages.back().containsText("6000,00"));
}

TEST_F(AttachmentTest, AMissingInvoiceIsSaid)
{
    TfrmZalacznik printout(db.connection(), 404);
    EXPECT_THROW(printout.qrZalacznik().prepare(), PrintoutError);
}
