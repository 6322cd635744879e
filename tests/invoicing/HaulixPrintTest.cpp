#include "InvoicingFixture.h"
#include "ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

class HaulixPrintTest : public InvoicingFixture
{
protected:
    void SetUp() override
    {
        InvoicingFixture::SetUp();
        invoice = addInvoice();
        addPosition(invoice, QStringLiteral("Przewóz towaru wg załącznika"), 1, 3000, 1);
        for (int i = 1; i <= 45; ++i)
            addOrder([this, i](TZlecenia_przychObj &o) {
                o.NUMER = i;
                o.KWOTA = 1000 + i;
                o.IDFAKTURY = invoice;
            });
    }

    // haulix-print on the test's database, or on another one given first.
    ProgramRun run(const QStringList &job, const QString &database = {})
    {
        return ProgramRun::of(QStringLiteral(HAULIX_PRINT_PATH),
                              QStringList{"--db", database.isEmpty() ? db.path() : database}
                                  + job);
    }

    QString target(const QString &name) const { return dir.filePath(name); }

    QTemporaryDir dir;
    int invoice = 0;
};

TEST_F(HaulixPrintTest, InvoiceWithAttachmentIsOneFileInvoiceFirst)
{
    const QString file = target(QStringLiteral("faktura.pdf"));
    const ProgramRun done = run({"invoice-with-attachment", QString::number(invoice), file});
    ASSERT_EQ(done.exitCode, 0) << done.errors.toStdString();
    EXPECT_TRUE(done.errors.isEmpty()) << done.errors.toStdString();
    EXPECT_EQ(Poppler::info(file, QStringLiteral("Pages")), "3");
    EXPECT_EQ(Poppler::info(file, QStringLiteral("size"), 1), "595 x 842 pts (A4)");
    EXPECT_EQ(Poppler::info(file, QStringLiteral("size"), 3), "842 x 595 pts (A4)");
    EXPECT_EQ(Poppler::info(file, QStringLiteral("Title")), "Faktura VAT Nr 007/07/2026");
    const QString text = Poppler::text(file);
    const qsizetype invoiceAt = text.indexOf(QStringLiteral("Faktura VAT Nr 007/07/2026"));
    const qsizetype attachmentAt = text.indexOf(QStringLiteral("Zestawienie zbiorcze do rachunku"));
    EXPECT_GE(invoiceAt, 0);
    EXPECT_GT(attachmentAt, invoiceAt);
    EXPECT_TRUE(text.contains(QStringLiteral(" w/g załącznika do faktury")));
}

TEST_F(HaulixPrintTest, EachPrintoutByItsNameWithItsPolishTexts)
{
    const int order = addOrder([](TZlecenia_przychObj &o) {
        o.NUMER = 77;
        o.DODATKOWY_OPIS = QStringLiteral("Zażółć gęślą jaźń");
    });
    addGoods(order, QStringLiteral("Żółte łóżka"), 3);
    const std::tuple<const char *, int, QStringList> printouts[] = {
        {"invoice", invoice,
         {"Faktura VAT Nr 007/07/2026", "Gęśla Jaźń S.A.", "Słownie złotych:"}},
        {"attachment", invoice, {"Zestawienie zbiorcze do rachunku numer :", "Miejsce rozł."}},
        {"order", order, {"Zlecenie transportowe nr 00000077", "Żwirek Transport Jan Kolski",
                          "Żółte łóżka", "Zażółć gęślą jaźń"}}};
    for (const auto &[name, key, expected] : printouts) {
        const QString file = target(QString::fromLatin1(name) + QStringLiteral(".pdf"));
        const ProgramRun done = run({QString::fromLatin1(name), QString::number(key), file});
        EXPECT_EQ(done.exitCode, 0) << name << done.errors.toStdString();
        const QString text = Poppler::text(file);
        for (const QString &shown : expected)
            EXPECT_TRUE(text.contains(shown)) << name << ": " << shown.toStdString();
    }
}

TEST_F(HaulixPrintTest, AnUnknownIdIsOneLineAndLeavesNoFileOrAnEarlierOneAsItWas)
{
    ProgramRun done = run({"invoice", "9999", target(QStringLiteral("brak.pdf"))});
    EXPECT_EQ(done.exitCode, 1);
    EXPECT_EQ(done.errors, "Nie ma faktury o identyfikatorze 9999.\n");
    EXPECT_TRUE(QDir(dir.path()).isEmpty());

    const QString file = target(QStringLiteral("zlecenie.pdf"));
    {
        QFile earlier(file);
        ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
        earlier.write("poprzedni");
    }
    done = run({"order", "9999", file});
    EXPECT_EQ(done.exitCode, 1);
    EXPECT_EQ(done.errors, "Nie ma zlecenia o identyfikatorze 9999.\n");
    QFile earlier(file);
    ASSERT_TRUE(earlier.open(QIODevice::ReadOnly));
    EXPECT_EQ(earlier.readAll(), "poprzedni");
}

TEST_F(HaulixPrintTest, AnUnreadableDatabaseOrFileIsOneLine)
{
    const QString notADatabase = target(QStringLiteral("tekst.fdb"));
    {
        QFile text(notADatabase);
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write("to nie jest baza danych");
    }
    const QString file = target(QStringLiteral("faktura.pdf"));
    const QString nowhere = target(QStringLiteral("brak/katalogu/faktura.pdf"));
    for (const auto &[database, output, error] :
         {std::tuple{target(QStringLiteral("nie-ma.fdb")), file,
                     QStringLiteral("Nie można otworzyć bazy danych ")},
          {notADatabase, file, QStringLiteral("Nie można otworzyć bazy danych ")},
          {QString(), nowhere, "Nie można zapisać pliku " + nowhere}}) {
        const ProgramRun done = run({"invoice", QString::number(invoice), output}, database);
        EXPECT_EQ(done.exitCode, 1) << output.toStdString();
        EXPECT_EQ(done.errors.count(u'\n'), 1) << done.errors.toStdString();
        EXPECT_TRUE(done.errors.startsWith(error)) << done.errors.toStdString();
    }
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_FALSE(QFile::exists(nowhere));
}

TEST_F(HaulixPrintTest, AWrongCommandLineShowsTheUsage)
{
    ProgramRun done = run({"paragon", "1", target(QStringLiteral("x.pdf"))});
    EXPECT_EQ(done.exitCode, 2);
    EXPECT_TRUE(done.errors.startsWith(QStringLiteral("Nieznany wydruk: paragon.")));
    EXPECT_TRUE(done.errors.contains(QStringLiteral("invoice-with-attachment ID")));

    done = run({"invoice", "pierwsza", target(QStringLiteral("x.pdf"))});
    EXPECT_EQ(done.exitCode, 2);
    EXPECT_EQ(done.errors, "Identyfikator musi być dodatnią liczbą całkowitą: pierwsza\n");
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

TEST_F(HaulixPrintTest, TheCarriersListsWithTheirPeriodAndCarrier)
{
    addOrder([](TZlecenia_przychObj &o) {
        o.IDPRZEWOZNIK = CarrierKey;
        o.NUMER_FAKT_PRZEW = QStringLiteral("ŻW-1");
        o.KWOTA_FAKT_PRZEW = 500.0;
        o.DATA_FAKT_WYSTAWIENIA = DateTime::fromDate(QDate(2026, 7, 1));
        o.DNI_FAKT = 14;
        o.DATA_FAKT_PLATNOSCI = DateTime::fromDate(QDate(2026, 7, 20));
        o.NRRAMPY = 1;
    });
    addOrder([](TZlecenia_przychObj &o) {
        o.IDPRZEWOZNIK = ClientKey;
        o.NUMER_FAKT_PRZEW = QStringLiteral("GĘ-1");
        o.KWOTA_FAKT_PRZEW = 300.0;
        o.DATA_FAKT_WYSTAWIENIA = DateTime::fromDate(QDate(2026, 7, 2));
    });
    const auto print = [this](const QStringList &job) {
        const QString file = target(job.first() + QStringLiteral(".pdf"));
        const ProgramRun done = run(job + QStringList{file});
        EXPECT_EQ(done.exitCode, 0) << done.errors.toStdString();
        return done.exitCode == 0 ? Poppler::text(file) : QString();
    };
    const QString july1 = QStringLiteral("2026-07-01"), july31 = QStringLiteral("2026-07-31");

    QString text
        = print({"carriers-paid", july1, july31, "--carrier", QString::number(CarrierKey)});
    EXPECT_TRUE(
        text.contains(" Faktury przewoźników zapłacone od 2026-07-01 do dnia 2026-07-31"));
    EXPECT_TRUE(text.contains("ŻW-1"));
    EXPECT_TRUE(text.contains("ŻWIREK ; Łódź"));
    text = print({"carriers-issued", "--carrier", QString::number(ClientKey), july1, july31});
    EXPECT_TRUE(text.contains("GĘ-1"));
    EXPECT_FALSE(text.contains("ŻW-1"));
    text = print({"carriers-unpaid"});
    EXPECT_TRUE(text.contains("GĘ-1"));
    EXPECT_FALSE(text.contains("ŻW-1"));
    text = print({"carriers-payment"});
    EXPECT_TRUE(text.contains("GĘŚLA"));
    EXPECT_FALSE(text.contains("ŻW-1"));

    const std::pair<QStringList, QString> wrong[] = {
        {{"carriers-paid", july1},
         "Wydruk carriers-paid wymaga argumentów: OD DO [--carrier ID]."},
        {{"carriers-paid", "2026-13-01", july31}, "Data musi mieć postać rrrr-mm-dd: 2026-13-01"},
        {{"carriers-paid", july31, july1}, "Początek okresu jest późniejszy niż jego koniec."},
        {{"carriers-unpaid", "--carrier", "ŻWIREK"},
         "Identyfikator przewoźnika musi być dodatnią liczbą całkowitą: ŻWIREK"}};
    for (const auto &[arguments, error] : wrong) {
        const ProgramRun done = run(arguments + QStringList{target(QStringLiteral("zle.pdf"))});
        EXPECT_EQ(done.exitCode, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(done.errors.startsWith(error)) << done.errors.toStdString();
    }
    EXPECT_FALSE(QFile::exists(target(QStringLiteral("zle.pdf"))));
}
