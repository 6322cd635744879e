#include "CarrierInvoicesReport.h"
#include "DateTime.h"
#include "Report.h"

#include <gtest/gtest.h>

namespace {

QStringList allTexts(const std::vector<ReportPage> &pages)
{
    QStringList texts;
    for (const ReportPage &page : pages)
        texts << page.texts();
    return texts;
}

// The text printed right after each occurrence of a caption.
QStringList textsAfter(const QStringList &texts, const QString &caption)
{
    QStringList result;
    for (qsizetype i = 0; i + 1 < texts.size(); ++i) {
        if (texts.at(i) == caption)
            result << texts.at(i + 1);
    }
    return result;
}

std::vector<const ReportTextItem *> textItems(const ReportPage &page, const QString &text)
{
    std::vector<const ReportTextItem *> result;
    for (const ReportItem &item : page.items) {
        const auto *textItem = std::get_if<ReportTextItem>(&item);
        if (textItem && textItem->text == text)
            result.push_back(textItem);
    }
    return result;
}

const QString title = QStringLiteral("Faktury przewoźników niezapłacone");

} // namespace

// The exact texts and places of a small report: ReportDumpTest.
TEST(ReportLayout, ThreePagesWithHeadersNumberedFootersRowsInOrderAndTheirSums)
{
    const std::vector<CarrierInvoice> rows = sampleInvoices(3, 30);
    CarrierInvoicesReport sample(rows);
    const std::vector<ReportPage> &pages = sample.report().prepare();
    ASSERT_EQ(pages.size(), 3u);
    const double footerTop = 297.0 - 10.0 - 8.0;
    QStringList numbers;
    for (const ReportPage &page : pages) {
        const QStringList texts = page.texts();
        EXPECT_EQ(texts.first(), title) << "page " << page.number;
        EXPECT_EQ(texts.count(title), 1);
        EXPECT_TRUE(texts.contains(QStringLiteral("Numer Faktury")));
        EXPECT_EQ(texts.last(), QStringLiteral("Strona %1 z 3").arg(page.number));
        for (const ReportItem &item : page.items) {
            const auto *text = std::get_if<ReportTextItem>(&item);
            if (!text || text->text.startsWith(QStringLiteral("Strona")))
                continue;
            EXPECT_LE(text->rectMm.bottom(), footerTop + 1e-9) << text->text.toStdString();
            if (text->text.startsWith(QStringLiteral("FV/")))
                numbers << text->text;
        }
    }
    QStringList expectedNumbers;
    QStringList expectedGroups;
    double total = 0.0;
    for (int carrier = 0; carrier < 3; ++carrier) {
        double sum = 0.0;
        for (int i = 0; i < 30; ++i) {
            const CarrierInvoice &row = rows[static_cast<size_t>(carrier * 30 + i)];
            expectedNumbers << row.number;
            sum += row.amount;
        }
        expectedGroups << money(sum);
        total += sum;
    }
    EXPECT_EQ(numbers, expectedNumbers);
    const QStringList texts = allTexts(pages);
    EXPECT_EQ(textsAfter(texts, QStringLiteral("RAZEM ZŁ:")), expectedGroups);
    EXPECT_EQ(textsAfter(texts, QStringLiteral("Ogólem :")), QStringList{money(total)});
    // Carrier 1: 30 x 100 + 0.25 x (0 + ... + 29).
    EXPECT_EQ(expectedGroups.first(), money(3108.75));
}

TEST(ReportLayout, EmptyReportPrintsHeadersAndZeroSummaryOrNothingWhenToldSo)
{
    CarrierInvoicesReport sample({});
    const std::vector<ReportPage> &pages = sample.report().prepare();
    ASSERT_EQ(pages.size(), 1u);
    EXPECT_EQ(
        pages[0].texts(),
        (QStringList{title, QStringLiteral("Numer Faktury"),
                     QStringLiteral("Kwota do zapłaty Brutto w zł"), QStringLiteral("Ogólem :"),
                     money(0.0), QStringLiteral("Strona 1 z 1")}));
    sample.report().setPrintIfEmpty(false);
    EXPECT_TRUE(sample.report().prepare().empty());
}

TEST(ReportLayout, FirstAndLastPageFlagsLeaveHeaderAndFooterOut)
{
    CarrierInvoicesReport sample(sampleInvoices(3, 30));
    sample.report().band(QStringLiteral("QRBandHeader")).setPrintOnFirstPage(false);
    sample.report().band(QStringLiteral("QRBandFooter")).setPrintOnLastPage(false);
    const std::vector<ReportPage> &pages = sample.report().prepare();
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_FALSE(pages[0].containsText(title));
    EXPECT_TRUE(pages[1].containsText(title));
    EXPECT_TRUE(pages[0].containsText(QStringLiteral("Strona 1 z 3")));
    EXPECT_FALSE(pages[2].containsText(QStringLiteral("Strona 3 z 3")));
}

TEST(ReportLayout, BeforePrintChangesFixedBandsAndHidesRowsWhichThenCountInNoSum)
{
    CarrierInvoicesReport sample(sampleInvoices(1, 4));
    sample.report().band(QStringLiteral("QRBandHeader")).setBeforePrint([&sample](ReportBand &band,
                                                                                 bool &) {
        band.label(QStringLiteral("lblTytul"))
            .setText(QStringLiteral("Zestawienie, strona %1").arg(sample.report().pageNumber()));
    });
    ReportBand &detail = sample.report().band(QStringLiteral("QRBandDetail"));
    detail.setBeforePrint([&sample](ReportBand &band, bool &print) {
        print = sample.current().number != QStringLiteral("FV/1/2");
        band.label(QStringLiteral("qrNumer")).setFont(ReportFont::sized(9, print));
    });
    const std::vector<ReportPage> &pages = sample.report().prepare();
    const QStringList texts = pages[0].texts();
    EXPECT_EQ(texts.first(), QStringLiteral("Zestawienie, strona 1"));
    EXPECT_FALSE(texts.contains(QStringLiteral("FV/1/2")));
    EXPECT_EQ(textsAfter(texts, QStringLiteral("RAZEM ZŁ:")),
              QStringList{money(100 + 100.5 + 100.75)});
    const auto items = textItems(pages[0], QStringLiteral("FV/1/3"));
    ASSERT_EQ(items.size(), 1u);
    EXPECT_TRUE(items[0]->font->bold);
    EXPECT_EQ(items[0]->font->pointSize, 9);
}

TEST(ReportLayout, GroupHeaderForcingNewPageStartsEachCarrierOnItsOwnPage)
{
    CarrierInvoicesReport sample(sampleInvoices(3, 2));
    sample.carrierGroup().header()->setForceNewPage(true);
    const std::vector<ReportPage> &pages = sample.report().prepare();
    ASSERT_EQ(pages.size(), 3u);
    EXPECT_TRUE(pages[0].containsText(QStringLiteral("Łódzki Transport1")));
    EXPECT_TRUE(pages[1].containsText(QStringLiteral("Gdańska Spedycja1")));
    EXPECT_TRUE(pages[2].containsText(QStringLiteral("Źródło Żwirowe1")));
    EXPECT_TRUE(pages[2].containsText(QStringLiteral("Ogólem :")));
    EXPECT_EQ(pages[2].texts().last(), QStringLiteral("Strona 3 z 3"));
}

TEST(ReportLayout, GroupHeaderIsRepeatedOnTheNextPageWhenAsked)
{
    CarrierInvoicesReport sample(sampleInvoices(1, 60));
    sample.carrierGroup().setReprintHeaderOnNewPage(true);
    const std::vector<ReportPage> &pages = sample.report().prepare();
    ASSERT_EQ(pages.size(), 2u);
    const QStringList first = pages[0].texts().filter(QStringLiteral("FV/"));
    const QString lastOnFirst = first.last();
    const int nextRow = lastOnFirst.section(QLatin1Char('/'), 2).toInt() + 1;
    const QStringList second = pages[1].texts();
    ASSERT_GE(second.size(), 5);
    EXPECT_EQ(
        second.mid(0, 5),
        (QStringList{title, QStringLiteral("Numer Faktury"),
                     QStringLiteral("Kwota do zapłaty Brutto w zł"),
                     QStringLiteral("Łódzki Transport1"), QStringLiteral("FV/1/%1").arg(nextRow)}));
}

TEST(ReportLayout, RunningSumOnTheDetailIncludesItsOwnRow)
{
    CarrierInvoicesReport sample(sampleInvoices(2, 2));
    const ReportSum &running = sample.report().addSum(
        QStringLiteral("running"), [&sample] { return sample.current().amount; });
    sample.report()
        .band(QStringLiteral("QRBandDetail"))
        .addLabel(QStringLiteral("qrNarastajaco"), QRectF(80, 0, 40, 6))
        .setValue(running.valueFunction())
        .setFormatter([](const QVariant &v) -> QString { return QStringLiteral("= ") + money(v); });
    const QStringList texts = sample.report().prepare()[0].texts().filter(QStringLiteral("= "));
    EXPECT_EQ(
        texts,
        (QStringList{QStringLiteral("= ") + money(100), QStringLiteral("= ") + money(200.25),
                     QStringLiteral("= ") + money(400.25), QStringLiteral("= ") + money(600.5)}));
}

TEST(ReportLayout, NestedGroupsCloseInnerBeforeOuterAndRestartInnerOnOuterBreak)
{
    struct Row
    {
        QString country;
        QString city;
        double amount;
    };
    const std::vector<Row> rows{{QStringLiteral("PL"), QStringLiteral("Kraków"), 1},
                                {QStringLiteral("PL"), QStringLiteral("Kraków"), 2},
                                {QStringLiteral("PL"), QStringLiteral("Łódź"), 4},
                                {QStringLiteral("DE"), QStringLiteral("Łódź"), 8}};
    size_t index = 0;
    Report report;
    report.setNeedData([&] { return index < rows.size() ? (++index, true) : false; });
    const auto current = [&]() -> const Row & { return rows.at(index - 1); };
    ReportGroup &country
        = report.addGroup(QStringLiteral("kraj"), [&] { return current().country; });
    ReportGroup &city = report.addGroup(QStringLiteral("miasto"), [&] { return current().city; });
    const ReportSum &countrySum = report.addSum(
        QStringLiteral("k"), [&] { return current().amount; }, &country);
    const ReportSum &citySum = report.addSum(
        QStringLiteral("m"), [&] { return current().amount; }, &city);
    country.addHeader(QStringLiteral("hk"), 5).addLabel(QStringLiteral("l"), QRectF(0, 0, 50, 5))
        .setValue([&] { return QString(QStringLiteral("kraj ") + current().country); });
    city.addHeader(QStringLiteral("hm"), 5).addLabel(QStringLiteral("l"), QRectF(0, 0, 50, 5))
        .setValue([&] { return QString(QStringLiteral("miasto ") + current().city); });
    city.addFooter(QStringLiteral("fm"), 5)
        .addLabel(QStringLiteral("l"), QRectF(0, 0, 50, 5))
        .setValue(citySum.valueFunction())
        .setFormatter([](const QVariant &v) -> QString {
            return QStringLiteral("suma miasta ") + v.toString();
        });
    country.addFooter(QStringLiteral("fk"), 5)
        .addLabel(QStringLiteral("l"), QRectF(0, 0, 50, 5))
        .setValue(countrySum.valueFunction())
        .setFormatter([](const QVariant &v) -> QString {
            return QStringLiteral("suma kraju ") + v.toString();
        });

    const QStringList texts = report.prepare()[0].texts();
    EXPECT_EQ(texts,
              (QStringList{QStringLiteral("kraj PL"), QStringLiteral("miasto Kraków"),
                           QStringLiteral("suma miasta 3"), QStringLiteral("miasto Łódź"),
                           QStringLiteral("suma miasta 4"), QStringLiteral("suma kraju 7"),
                           QStringLiteral("kraj DE"), QStringLiteral("miasto Łódź"),
                           QStringLiteral("suma miasta 8"), QStringLiteral("suma kraju 8")}));
}

TEST(ReportLayout, WrappedTextStretchesItsBandAndPushesTheNextOneDown)
{
    Report report;
    int rows = 0;
    report.setNeedData([&rows] { return rows < 2 ? (++rows, true) : false; });
    ReportBand &detail = report.addBand(BandType::Detail, QStringLiteral("detail"), 5);
    detail.addLabel(QStringLiteral("tresc"), QRectF(0, 0, 30, 5))
        .setValue([&rows] {
            return rows == 1 ? QStringLiteral("Usługa przewozowa na trasie Gdańsk – Zakopane "
                                              "z rozładunkiem w trzech miejscach")
                             : QStringLiteral("Krótko");
        })
        .setWordWrap(true)
        .setStretch(true)
        .setFrame(Qt::BottomEdge);
    const ReportPage &page = report.prepare().at(0);
    const auto &first = std::get<ReportTextItem>(page.items.at(0));
    const auto &underline = std::get<ReportLineItem>(page.items.at(1));
    const auto &second = std::get<ReportTextItem>(page.items.at(2));
    EXPECT_GT(first.rectMm.height(), 10.0);
    EXPECT_DOUBLE_EQ(underline.fromMm.y(), first.rectMm.bottom());
    EXPECT_DOUBLE_EQ(second.rectMm.top(), first.rectMm.bottom());
    EXPECT_DOUBLE_EQ(second.rectMm.height(), 5.0);
}

TEST(ReportLayout, BottomMarginKeepsRoomUnderAStretchedText)
{
    const QString text = QStringLiteral("Usługa przewozowa na trasie Gdańsk – Zakopane");
    double heights[2] = {};
    for (const double margin : {0.0, 0.8}) {
        Report report;
        bool printed = false;
        report.setNeedData([&printed] { return !printed && (printed = true); });
        report.addBand(BandType::Detail, QStringLiteral("detail"), 5)
            .addLabel(QStringLiteral("tresc"), QRectF(0, 0, 30, 5), text)
            .setWordWrap(true)
            .setStretch(true)
            .setBottomMargin(margin);
        heights[margin > 0] = std::get<ReportTextItem>(report.prepare().at(0).items.at(0))
                                  .rectMm.height();
    }
    EXPECT_GT(heights[0], 5.0);
    EXPECT_NEAR(heights[1] - heights[0], 0.8, 1e-9);
}

TEST(ReportLayout, LandscapePagesAreWideAndLabelsSitInsideTheMargins)
{
    CarrierInvoicesReport sample(sampleInvoices(1, 1));
    sample.report().setOrientation(QPageLayout::Landscape);
    sample.report().pageSetup().leftMm = 15;
    const ReportPage &page = sample.report().prepare().at(0);
    EXPECT_NEAR(page.sizeMm.width(), 297.0, 0.01);
    EXPECT_NEAR(page.sizeMm.height(), 210.0, 0.01);
    const auto items = textItems(page, title);
    ASSERT_EQ(items.size(), 1u);
    EXPECT_DOUBLE_EQ(items[0]->rectMm.left(), 15.0);
    EXPECT_DOUBLE_EQ(items[0]->rectMm.top(), 10.0);
    EXPECT_EQ(page.texts().last(), QStringLiteral("Strona 1 z 1"));
    const auto footer = textItems(page, QStringLiteral("Strona 1 z 1"));
    EXPECT_DOUBLE_EQ(footer[0]->rectMm.top(), 210.0 - 10.0 - 8.0 + 2.0);
}

TEST(ReportLayout, DisabledBandsAndUnknownNamesAreHandled)
{
    CarrierInvoicesReport sample(sampleInvoices(1, 3));
    sample.report().band(QStringLiteral("QRBandDetail")).setEnabled(false);
    const QStringList texts = sample.report().prepare()[0].texts();
    EXPECT_TRUE(texts.filter(QStringLiteral("FV/")).isEmpty());
    EXPECT_EQ(textsAfter(texts, QStringLiteral("Ogólem :")), QStringList{money(0)});
    EXPECT_THROW(sample.report().band(QStringLiteral("QRBandNiema")), std::invalid_argument);
    EXPECT_THROW(sample.report().band(QStringLiteral("QRBandDetail")).label(QStringLiteral("x")),
                 std::invalid_argument);
}

TEST(ReportLayout, ValuesWithoutFormatterPrintInThePolishWay)
{
    const auto text = [](const QVariant &value) { return ReportLabel::defaultText(value); };
    EXPECT_EQ(text(QVariant(1234.5)), QStringLiteral("1234,5"));
    EXPECT_EQ(text(QVariant(-0.25)), QStringLiteral("-0,25"));
    EXPECT_EQ(text(QVariant(42)), QStringLiteral("42"));
    EXPECT_EQ(text(QVariant(QDate(2026, 3, 5))), QStringLiteral("2026-03-05"));
    EXPECT_EQ(text(QVariant(QDateTime(QDate(2026, 3, 5), QTime(13, 30)))),
              QStringLiteral("2026-03-05"));
    EXPECT_EQ(text(QVariant::fromValue(DateTime::fromDate(QDate(2025, 12, 31)))),
              QStringLiteral("2025-12-31"));
    EXPECT_EQ(text(QVariant::fromValue(DateTime())), QString());
    EXPECT_EQ(text(QVariant(QMetaType::fromType<double>())), QString());
    EXPECT_EQ(text(QVariant(QByteArray("Żółw"))), QStringLiteral("Żółw"));

    ReportLabel label(QStringLiteral("l"), QRectF(0, 0, 10, 5), QStringLiteral("Linia 1\r\nLinia 2"));
    EXPECT_EQ(label.currentText(), QStringLiteral("Linia 1\nLinia 2"));
}

TEST(ReportLayout, PagesAreHandedOverWhenDoneUnlessTheyWaitForTheNumberOfPages)
{
    CarrierInvoicesReport sample(sampleInvoices(3, 30));
    Report &report = sample.report();
    const QString laidOutWhole = dumpPages(report.prepare());
    std::vector<ReportPage> taken;
    std::vector<int> layingOut;
    const auto takePage = [&](ReportPage &&page) {
        layingOut.push_back(report.pageNumber());
        taken.push_back(std::move(page));
    };

    // "Strona N z M" keeps every page until the last one is laid out.
    report.prepare(takePage);
    EXPECT_TRUE(report.pages().empty());
    EXPECT_EQ(dumpPages(taken), laidOutWhole);
    EXPECT_EQ(layingOut, std::vector<int>({3, 3, 3}));

    // Without the number of pages, each page goes before the next starts.
    report.band(QStringLiteral("QRBandFooter"))
        .label(QStringLiteral("lblStrona"))
        .setPageText({})
        .setValue([&report] { return QStringLiteral("Strona %1").arg(report.pageNumber()); });
    const QString numberedOnly = dumpPages(report.prepare());
    taken.clear();
    layingOut.clear();
    report.prepare(takePage);
    EXPECT_EQ(dumpPages(taken), numberedOnly);
    EXPECT_TRUE(numberedOnly.contains(QStringLiteral("Strona 3")));
    EXPECT_EQ(layingOut, std::vector<int>({1, 2, 3}));
}
