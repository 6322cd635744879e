// Long documents painted in parts on several threads and joined, and texts
// drawn from kept glyphs: neither may change what a page shows.
#include "CarrierInvoicesReport.h"
#include "PdfDocument.h"
#include "PdfJoin.h"
#include "PopplerText.h"
#include "ReportError.h"
#include "ReportPainter.h"
#include "ReportTextCache.h"

#include <QBuffer>
#include <QFile>
#include <QPainter>
#include <QPdfWriter>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>
#include <zlib.h>

#include <atomic>

namespace {

QString written(PdfDocument &document, const QString &path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    document.write(file);
    return path;
}

// Pages as a report lays them out when they are painted meanwhile.
void handOver(PdfDocument &document, const std::vector<ReportPage> &pages,
              const QPageLayout &layout)
{
    for (const ReportPage &page : pages)
        document.takePage(ReportPage(page), layout);
}

// What qpdf finds wrong with the file's structure: the cross-reference
// table, the objects, the page tree; empty when nothing.
QString structureErrors(const QString &path)
{
    QProcess qpdf;
    qpdf.start(QStringLiteral("qpdf"), {QStringLiteral("--check"), path});
    if (!qpdf.waitForFinished(60000))
        return QStringLiteral("qpdf did not run (package qpdf)");
    const QString output
        = QString::fromUtf8(qpdf.readAllStandardOutput() + qpdf.readAllStandardError());
    return qpdf.exitCode() == 0 && !output.contains(QStringLiteral("WARNING")) ? QString() : output;
}

// The uncompressed content streams of a file's pages, in file order.
std::vector<QByteArray> contentStreams(const QByteArray &pdf)
{
    std::vector<QByteArray> streams;
    qsizetype at = 0;
    while ((at = pdf.indexOf("stream\n", at)) >= 0) {
        const qsizetype start = at + 7;
        const qsizetype end = pdf.indexOf("endstream", start);
        QByteArray inflated(16 << 20, Qt::Uninitialized);
        uLongf size = static_cast<uLongf>(inflated.size());
        if (uncompress(reinterpret_cast<Bytef *>(inflated.data()), &size,
                       reinterpret_cast<const Bytef *>(pdf.constData() + start),
                       static_cast<uLong>(end - start)) == Z_OK) {
            inflated.truncate(static_cast<qsizetype>(size));
            if (inflated.contains(" Tj"))
                streams.push_back(inflated);
        }
        at = end;
    }
    return streams;
}

QByteArray paintedWith(const ReportPage &page, ReportTextCache *texts)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(600);
    QPainter painter(&writer);
    ReportPainter::paintPage(painter, page, 600 / 25.4, texts);
    painter.end();
    return bytes;
}

class ThreadOfPainting : public ReportDrawing
{
public:
    explicit ThreadOfPainting(std::atomic<QThread *> &thread) : m_thread(thread) {}
    void paint(QPainter &painter, const QRectF &target) const override
    {
        m_thread = QThread::currentThread();
        painter.drawRect(target);
    }
    QString description() const override { return QStringLiteral("wątek"); }

private:
    std::atomic<QThread *> &m_thread;
};

} // namespace

TEST(PdfDocument, PartsPaintedApartJoinIntoTheSameDocument)
{
    QTemporaryDir dir;
    CarrierInvoicesReport upright(sampleInvoices(4, 40));
    CarrierInvoicesReport lying(sampleInvoices(1, 30));
    lying.report().setOrientation(QPageLayout::Landscape);
    const std::vector<ReportPage> &first = upright.report().prepare();
    const std::vector<ReportPage> &second = lying.report().prepare();
    const int pages = int(first.size() + second.size());
    ASSERT_GE(pages, 6);

    const QPageLayout uprightLayout = upright.report().pageSetup().pageLayout();
    const QPageLayout lyingLayout = lying.report().pageSetup().pageLayout();
    const auto write = [&](int parts, int partPages, bool whileLaidOut, const QString &name) {
        PdfDocument document(QStringLiteral("Faktury przewoźników"));
        document.setParts(parts, partPages);
        if (whileLaidOut) {
            handOver(document, first, uprightLayout);
            handOver(document, second, lyingLayout);
        } else {
            document.addPages(first, uprightLayout);
            document.addPages(second, lyingLayout);
        }
        EXPECT_EQ(document.pageCount(), pages);
        return written(document, dir.filePath(name));
    };
    const QString whole = write(1, 1000, false, QStringLiteral("cały.pdf"));
    const QString joined = write(3, 1, false, QStringLiteral("z-części.pdf"));
    // Parts of two pages painted as they come, and the rest in one.
    const QString meanwhile = write(2, 2, true, QStringLiteral("w-trakcie.pdf"));
    EXPECT_EQ(structureErrors(meanwhile), QString());
    EXPECT_EQ(Poppler::text(meanwhile), Poppler::text(whole));
    EXPECT_EQ(Poppler::info(meanwhile, QStringLiteral("Title")),
              QStringLiteral("Faktury przewoźników"));

    EXPECT_EQ(structureErrors(joined), QString());
    EXPECT_EQ(Poppler::info(joined, QStringLiteral("Pages")), QString::number(pages));
    EXPECT_EQ(Poppler::info(joined, QStringLiteral("Title")),
              QStringLiteral("Faktury przewoźników"));
    EXPECT_EQ(Poppler::text(joined), Poppler::text(whole));
    EXPECT_EQ(Poppler::info(joined, QStringLiteral("size"), 1),
              QStringLiteral("595 x 842 pts (A4)"));
    EXPECT_EQ(Poppler::info(joined, QStringLiteral("size"), pages),
              QStringLiteral("842 x 595 pts (A4)"));
    // Each part embeds its own subset of a font under a name of its own.
    QFile file(joined);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QStringList subsets;
    const QRegularExpression fontName(QStringLiteral("/FontName /([A-Z]{6})\\+"));
    for (const QRegularExpressionMatch &match : fontName.globalMatch(QString::fromLatin1(bytes)))
        subsets << match.captured(1);
    EXPECT_GT(subsets.size(), 3);
    EXPECT_EQ(QSet<QString>(subsets.begin(), subsets.end()).size(), subsets.size())
        << subsets.join(u' ').toStdString();
}

TEST(PdfDocument, DrawingsArePaintedOnTheCallingThread)
{
    CarrierInvoicesReport sample(sampleInvoices(4, 40));
    std::vector<ReportPage> pages = sample.report().prepare();
    ASSERT_GE(pages.size(), 4u);
    std::atomic<QThread *> lastPage = nullptr;
    std::atomic<QThread *> firstPage = nullptr;
    pages.back().items.push_back(ReportDrawingItem{QRectF(10, 10, 50, 30),
                                                   std::make_shared<ThreadOfPainting>(lastPage)});
    const auto write = [&](bool whileLaidOut) {
        PdfDocument document(QStringLiteral("Wykres"));
        document.setParts(2, 1);
        if (whileLaidOut)
            handOver(document, pages, sample.report().pageSetup().pageLayout());
        else
            document.addPages(pages, sample.report().pageSetup().pageLayout());
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        document.write(buffer);
        return bytes;
    };
    EXPECT_TRUE(write(false).startsWith("%PDF"));
    EXPECT_EQ(lastPage.load(), QThread::currentThread());

    pages.front().items.push_back(ReportDrawingItem{
        QRectF(10, 10, 50, 30), std::make_shared<ThreadOfPainting>(firstPage)});
    for (const bool whileLaidOut : {false, true}) {
        firstPage = nullptr;
        lastPage = nullptr;
        EXPECT_TRUE(write(whileLaidOut).startsWith("%PDF"));
        EXPECT_EQ(firstPage.load(), QThread::currentThread());
        EXPECT_EQ(lastPage.load(), QThread::currentThread());
    }
}

TEST(PdfJoin, RefusesWhatQPdfWriterDidNotWrite)
{
    QByteArray out;
    QBuffer buffer(&out);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_THROW(PdfJoin::join({QByteArray("to nie jest PDF")}, buffer), ReportError);
    const QByteArray noObjects("%PDF-1.4\nxref\n0 1\ntrailer\n<< >>\nstartxref\n9\n%%EOF\n");
    EXPECT_THROW(PdfJoin::join({noObjects}, buffer), ReportError);
}

TEST(ReportTextCache, DrawsEveryTextWithTheGlyphsAndPlacesQPainterGivesIt)
{
    // Repeated names, amounts whose figures kern ("7,", "4."), dates, every
    // alignment, a text wider than its box, a wrapped one and an underlined
    // font: the page must come out the same byte for byte.
    ReportPage page;
    const auto font = [](double size, bool bold, bool underline = false) {
        auto result = std::make_shared<ReportFont>(ReportFont::sized(size, bold));
        result->underline = underline;
        return result;
    };
    const auto plain = font(8, false);
    const auto bold = font(10, true);
    const auto underlined = font(8, false, true);
    const QString texts[] = {
        QStringLiteral("Zażółć gęślą jaźń"), QStringLiteral("1\u00a0747,74"),
        QStringLiteral("-374,20"), QStringLiteral("2026-11-22"), QStringLiteral("47,4%"),
        QStringLiteral("Gdańsk - Toruń - Kraków"), QStringLiteral("00012345"),
        QStringLiteral("7.4/(17)"), QStringLiteral("Zażółć gęślą jaźń"),
        QStringLiteral("AVAWAY To 7,")};
    const Qt::Alignment alignments[] = {
        Qt::AlignLeft | Qt::AlignVCenter, Qt::AlignRight | Qt::AlignVCenter,
        Qt::AlignHCenter | Qt::AlignTop, Qt::AlignRight | Qt::AlignBottom};
    double y = 10;
    for (const auto &face : {plain, bold, underlined}) {
        for (const QString &text : texts) {
            for (const Qt::Alignment alignment : alignments) {
                page.items.push_back(ReportTextItem{QRectF(10, y, 60, 5), text, face, alignment});
                y += 1.5;
            }
        }
    }
    page.items.push_back(
        ReportTextItem{QRectF(80, 10, 8, 4), QStringLiteral("Za szeroki tekst"), plain});
    page.items.push_back(ReportTextItem{QRectF(80, 20, 20, 12),
                                        QStringLiteral("Tekst zawijany w wiele linii"), plain,
                                        Qt::AlignLeft | Qt::AlignTop, true});

    ReportTextCache cache;
    const std::vector<QByteArray> cached = contentStreams(paintedWith(page, &cache));
    const std::vector<QByteArray> laidOut = contentStreams(paintedWith(page, nullptr));
    ASSERT_EQ(cached.size(), 1u);
    ASSERT_EQ(laidOut.size(), 1u);
    EXPECT_EQ(cached.front(), laidOut.front());
}
