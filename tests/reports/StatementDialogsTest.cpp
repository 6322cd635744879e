// Choosing a statement in its dialog, previewing it, and saving it as CSV.
#include "PdfFileReportOutput.h"
#include "PopplerText.h"
#include "ReportCsvExport.h"
#include "ReportOutput.h"
#include "ReportsFixture.h"
#include "ScriptedFilePrompts.h"
#include "ScriptedMessages.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TfrmWybierzDatyAndUsera1.h"
#include "TfrmWyborKontrachentDaty.h"
#include "TfrmWyborKontrachentDaty1.h"
#include "TfrmZestawienieKontrahenta.h"
#include "Typing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

class StatementDialogs : public ReportsFixture
{
protected:
    template <class Dialog, class... Args>
    std::unique_ptr<Dialog> open(Args... args)
    {
        auto dialog = TfrmRODefault::create<Dialog>(nullptr, args...);
        dialog->show();
        return dialog;
    }

    static void chooseMarch(TfrmStatementChoice &dialog)
    {
        Typing::into(dialog.deOd, QStringLiteral("2026-03-01"));
        Typing::into(dialog.deDo, QStringLiteral("2026-03-31"));
    }

    QString previewText() const
    {
        EXPECT_EQ(files->deliveries().size(), 1u);
        if (files->deliveries().empty())
            return {};
        return Poppler::text(files->deliveries().back().path);
    }

    QTemporaryDir dir;
    ReportOutputs::Scoped<PdfFileReportOutput> files{dir.path()};
};

TEST_F(StatementDialogs, TheClientsDialogOffersTheSelectedClientAndPreviewsTheChosenOne)
{
    seedCompany();
    const auto all = open<TfrmWyborKontrachentDaty>(0);
    EXPECT_TRUE(all->cbWszyscy->isChecked());
    EXPECT_FALSE(all->cbWybor->isEnabled());

    const auto dialog = open<TfrmWyborKontrachentDaty>(beta);
    EXPECT_EQ(dialog->lblHeader->text(), "Kwoty dla kontrahenta - przychód, zysk");
    EXPECT_EQ(dialog->cbWybor->currentText(), "BETA");
    EXPECT_FALSE(dialog->cbWszyscy->isChecked());
    const ReportPeriod month = ReportPeriod::monthOf(QDate::currentDate());
    EXPECT_EQ(dialog->deOd->date(), month.from);
    EXPECT_EQ(dialog->deDo->date(), month.to);

    chooseMarch(*dialog);
    ASSERT_EQ(dialog->period().from, QDate(2026, 3, 1));
    ASSERT_EQ(dialog->period().to, QDate(2026, 3, 31));
    dialog->cbWybor->setFocus();
    QTest::keyClick(dialog->cbWybor, Qt::Key_Up);   // ALFA stands before BETA
    ASSERT_EQ(dialog->cbWybor->currentText(), "ALFA");
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);

    EXPECT_EQ(dialog->result(), TfrmRODefault::mrOk);
    const QString text = previewText();
    EXPECT_TRUE(text.contains(Company));
    EXPECT_TRUE(text.contains(QStringLiteral("Kontrahent: ALFA")));
    EXPECT_FALSE(text.contains(QStringLiteral("Kontrahent: BETA")));
    EXPECT_TRUE(text.contains(QStringLiteral("Ogółem (pozycji: 2):")));
}

TEST_F(StatementDialogs, APeriodEndingBeforeItStartsIsRefusedAndTheDialogStays)
{
    const auto dialog = open<TfrmWyborKontrachentDaty1>(0);
    Typing::into(dialog->deOd, QStringLiteral("2026-03-31"));
    Typing::into(dialog->deDo, QStringLiteral("2026-03-01"));
    scriptedMessages().expect();
    QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_EQ(scriptedMessages().shown()[0].text,
              "Data od : nie może być późniejsza niż Data do :.");
    EXPECT_EQ(scriptedMessages().shown()[0].caption, "Kwota stawki na przewoźnika - koszt");
    EXPECT_TRUE(files->deliveries().empty());
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(StatementDialogs, TheDispatchersDialogCarriesItsTitleAndPreviewsItsStatement)
{
    seedCompany();
    const struct
    {
        TfrmWybierzDatyAndUsera1::Kind kind;
        const char *title;
        const char *line;
    } kinds[] = {
        {TfrmWybierzDatyAndUsera1::Rates, "Zestawienie stawek na spedytora\\dysponenta",
         "2026-03"},
        {TfrmWybierzDatyAndUsera1::Invoices, "Zestawienie faktur na spedytora\\dysponenta",
         "001/03/2026"},
        {TfrmWybierzDatyAndUsera1::CarrierInvoices,
         "Zestawienie faktur obcych na spedytora\\dysponenta", "TX/1"},
    };
    for (const auto &kind : kinds) {
        const auto dialog = open<TfrmWybierzDatyAndUsera1>(kind.kind, anna);
        EXPECT_EQ(dialog->windowTitle(), QString::fromUtf8(kind.title));
        EXPECT_EQ(dialog->lblHeader->text(), QString::fromUtf8(kind.title));
        EXPECT_TRUE(dialog->cbWszyscy->isChecked());
        EXPECT_EQ(dialog->cbWybor->currentText(), "anna");
        chooseMarch(*dialog);
        QTest::mouseClick(dialog->btnOk, Qt::LeftButton);
        ASSERT_FALSE(files->deliveries().empty());
        const QString text = Poppler::text(files->deliveries().back().path);
        EXPECT_TRUE(text.contains(QString::fromUtf8(kind.line))) << kind.title;
    }
    EXPECT_EQ(files->deliveries().size(), 3u);
}

TEST_F(StatementDialogs, TheStatementSavedAsCsvReadsBackLineForLine)
{
    seedCompany();
    TfrmZestawienieKontrahenta statement(db.connection(), march(), 0);
    statement.report().prepare();
    const QString path = dir.filePath(QStringLiteral("kontrahenci.csv"));
    scriptedFilePrompts().answer(path);
    ASSERT_TRUE(ReportCsvExport::save(nullptr, statement.report()));
    ASSERT_EQ(scriptedFilePrompts().asked().size(), 1u);
    EXPECT_EQ(scriptedFilePrompts().asked()[0].fileName,
              "Kwoty dla kontrahenta - przychód, zysk od 2026-03-01 do 2026-03-31.csv");

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    ASSERT_TRUE(bytes.startsWith("\xEF\xBB\xBF"));
    const QStringList lines = QString::fromUtf8(bytes.mid(3)).split(QStringLiteral("\r\n"));
    ASSERT_EQ(lines.size(), 6);   // header, four orders, and the empty end
    EXPECT_EQ(lines[0], "Kontrahent;Numer;Data załad.;Trasa;Przychód;Koszt;Zysk;Marża");
    EXPECT_EQ(lines[1].toStdString(),
              "BETA;00000003;2026-03-10;Gdańsk - Kraków;3000,00;2000,00;1000,00;50,00");
    EXPECT_EQ(lines[3].toStdString(),
              "ALFA;00000002;2026-03-05;Gdańsk - Toruń - Kraków;234,50;200,00;34,50;17,25");
    EXPECT_EQ(lines[4].toStdString(),
              "GAMMA;00000004;2026-03-15;Gdańsk - Toruń - Kraków;500,00;600,00;-100,00;"
              "-16,67");
    EXPECT_EQ(lines[5], "");
}

TEST_F(StatementDialogs, ATextWithTheSeparatorIsQuotedInTheCsv)
{
    ReportTable table;
    table.header << QStringLiteral("Kontrahent") << QStringLiteral("Kwota");
    table.rows.push_back({QStringLiteral("Kowalski; \"Auto\""), 1234.5});
    EXPECT_EQ(table.csv(), QByteArray("\xEF\xBB\xBF") + "Kontrahent;Kwota\r\n"
                               + "\"Kowalski; \"\"Auto\"\"\";1234,50\r\n");
}
