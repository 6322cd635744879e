#include "CarrierInvoicesReport.h"
#include "PdfFileReportOutput.h"
#include "PopplerText.h"
#include "QtReportOutput.h"
#include "Report.h"
#include "ScriptedMessages.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace {

const QString pangram = QStringLiteral("Zażółć gęślą jaźń, ĄĘŁŃÓŚŹŻ");

} // namespace

TEST(ReportOutput, HeadlessPdfHoldsThePolishTextsOnA4PagesUprightOrLying)
{
    QTemporaryDir dir;
    CarrierInvoicesReport sample(sampleInvoices(3, 30));
    sample.report()
        .band(QStringLiteral("QRBandColumns"))
        .addLabel(QStringLiteral("lblUwagi"), QRectF(62, 0, 76, 8), pangram);
    const QString path = dir.filePath(QStringLiteral("przewoznicy.pdf"));
    ASSERT_TRUE(sample.report().exportPdf(path));

    EXPECT_EQ(Poppler::info(path, QStringLiteral("Pages")), QStringLiteral("3"));
    EXPECT_EQ(Poppler::info(path, QStringLiteral("Page size")),
              QStringLiteral("595 x 842 pts (A4)"));
    EXPECT_EQ(Poppler::info(path, QStringLiteral("Title")), QStringLiteral("Faktury przewoźników"));
    const QString text = Poppler::text(path);
    EXPECT_EQ(text.count(pangram), 3) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Faktury przewoźników niezapłacone")));
    EXPECT_TRUE(text.contains(QStringLiteral("Źródło Żwirowe1")));
    EXPECT_TRUE(text.contains(QStringLiteral("RAZEM ZŁ:")));
    EXPECT_TRUE(text.contains(QStringLiteral("Strona 3 z 3")));
    // The third page starts after the second form feed.
    EXPECT_TRUE(text.section(QLatin1Char('\f'), 2, 2).contains(QStringLiteral("Ogólem :")));

    sample.report().setOrientation(QPageLayout::Landscape);
    const QString lying = dir.filePath(QStringLiteral("poziomo.pdf"));
    ASSERT_TRUE(sample.report().exportPdf(lying));
    EXPECT_EQ(Poppler::info(lying, QStringLiteral("Page size")),
              QStringLiteral("842 x 595 pts (A4)"));
}

TEST(ReportOutput, UnwritablePathIsReportedAndNothingIsWritten)
{
    QTemporaryDir dir;
    CarrierInvoicesReport sample(sampleInvoices(1, 2));
    const QString path = dir.filePath(QStringLiteral("brak/katalogu.pdf"));
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(sample.report().exportPdf(path));
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown().front().text,
              QStringLiteral("Nie można zapisać pliku %1.").arg(path));
    EXPECT_FALSE(QFileInfo::exists(path));
}

TEST(ReportOutput, PreviewAndPrintGoThroughTheInstalledOutput)
{
    QTemporaryDir dir;
    const ReportOutputs::Scoped<PdfFileReportOutput> files(dir.path());
    CarrierInvoicesReport sample(sampleInvoices(3, 30));
    ASSERT_TRUE(sample.report().preview());
    ASSERT_TRUE(sample.report().print());

    ASSERT_EQ(files->deliveries().size(), 2u);
    const PdfFileReportOutput::Delivery preview = files->deliveries()[0];
    EXPECT_EQ(preview.kind, PdfFileReportOutput::Kind::Preview);
    EXPECT_EQ(preview.title, QStringLiteral("Faktury przewoźników"));
    EXPECT_EQ(preview.pageCount, 3);
    EXPECT_EQ(Poppler::info(preview.path, QStringLiteral("Pages")), QStringLiteral("3"));
    EXPECT_EQ(files->deliveries()[1].kind, PdfFileReportOutput::Kind::Print);
    EXPECT_NE(files->deliveries()[1].path, preview.path);

    // A report without pages writes no file.
    CarrierInvoicesReport empty({});
    empty.report().setPrintIfEmpty(false);
    ASSERT_TRUE(empty.report().preview());
    ASSERT_EQ(files->deliveries().size(), 3u);
    EXPECT_EQ(files->deliveries()[2].pageCount, 0);
    EXPECT_TRUE(files->deliveries()[2].path.isEmpty());
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files).size(), 2);
}

TEST(ReportOutput, PreviewWindowShowsEveryPage)
{
    CarrierInvoicesReport sample(sampleInvoices(3, 30));
    int shownPages = -1;
    QString windowTitle;
    // The dialog runs its own event loop; look at it from inside and close it.
    QTimer::singleShot(0, [&] {
        auto *dialog = qobject_cast<QPrintPreviewDialog *>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        windowTitle = dialog->windowTitle();
        if (auto *widget = dialog->findChild<QPrintPreviewWidget *>())
            shownPages = widget->pageCount();
        dialog->reject();
    });
    QtReportOutput output;
    EXPECT_TRUE(output.preview(sample.report()));
    EXPECT_EQ(windowTitle, QStringLiteral("Podgląd wydruku"));
    EXPECT_EQ(shownPages, 3);
}

TEST(ReportOutput, TextsKeepTheirOwnFaceWhenFontsAlternateRowByRow)
{
    QTemporaryDir dir;
    CarrierInvoicesReport sample(sampleInvoices(1, 6));
    int row = 0;
    sample.report().band(QStringLiteral("QRBandDetail")).setBeforePrint([&row](ReportBand &band,
                                                                              bool &) {
        band.label(QStringLiteral("qrNumer")).setFont(ReportFont::sized(8, ++row % 2 == 0));
    });
    const QString path = dir.filePath(QStringLiteral("kroje.pdf"));
    ASSERT_TRUE(sample.report().exportPdf(path));
    QProcess fonts;
    fonts.start(QStringLiteral("pdffonts"), {path});
    ASSERT_TRUE(fonts.waitForFinished());
    const QStringList faces = QString::fromUtf8(fonts.readAllStandardOutput())
                                  .split(QLatin1Char('\n'))
                                  .mid(2)
                                  .filter(QRegularExpression(QStringLiteral("\\S")));
    EXPECT_EQ(faces.filter(QStringLiteral("Bold")).size(), 1) << faces.join('\n').toStdString();
    EXPECT_GE(faces.size(), 2) << faces.join('\n').toStdString();
}
