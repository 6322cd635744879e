#include "InvoicingFixture.h"
#include "ProgramRun.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

ProgramRun runPrint(const QStringList &arguments)
{
    return ProgramRun::of(QStringLiteral(HAULIX_PRINT_PATH), arguments);
}

} // namespace

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

    QString target(const QString &name) const { return dir.filePath(name); }

    QTemporaryDir dir;
    int invoice = 0;
};

TEST_F(HaulixPrintTest, InvoiceWithAttachmentIsOneFileInvoiceFirst)
{
    const QString file = target(QStringLiteral("faktura.pdf"));
    const ProgramRun run = runPrint({QStringLiteral("--db"), db.path(),
                                   QStringLiteral("invoice-with-attachment"),
                                   QString::number(invoice), file});
    ASSERT_EQ(run.exitCode, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.isEmpty()) << run.errors.toStdString();
    EXPECT_EQ(Poppler::info(file, QStringLiteral("Pages")), QStringLiteral("3"));
    EXPECT_EQ(Poppler::info(file, QStringLiteral("size"), 1), QStringLiteral("595 x 842 pts (A4)"));
    EXPECT_EQ(Poppler::info(file, QStringLiteral("size"), 3), QStringLiteral("842 x 595 pts (A4)"));
    EXPECT_EQ(Poppler::info(file, QStringLiteral("Title")),
              QStringLiteral("Faktura VAT Nr 007/07/2026"));
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
        {"invoice", invoice, {"Faktura VAT Nr 007/07/2026", "Gęśla Jaźń S.A.", "Słownie złotych:"}},
        {"attachment", invoice, {"Zestawienie zbiorcze do rachunku numer :", "Miejsce rozł."}},
        {"order", order, {"Zlecenie transportowe nr 00000077", "Żwirek Transport Jan Kolski",
                          "Żółte łóżka", "Zażółć gęślą jaźń"}}};
    for (const auto &[name, key, expected] : printouts) {
        const QString file = target(QString::fromLatin1(name) + QStringLiteral(".pdf"));
        const ProgramRun run = runPrint({QStringLiteral("--db"), db.path(), QString::fromLatin1(name),
                                       QString::number(key), file});
        EXPECT_EQ(run.exitCode, 0) << name << run.errors.toStdString();
        const QString text = Poppler::text(file);
        for (const QString &shown : expected)
            EXPECT_TRUE(text.contains(shown)) << name << ": " << shown.toStdString();
    }
}

TEST_F(HaulixPrintTest, AnUnknownIdIsOneLineAndLeavesNoFile)
{
    const QString file = target(QStringLiteral("brak.pdf"));
    const ProgramRun run = runPrint({QStringLiteral("--db"), db.path(), QStringLiteral("invoice"),
                                   QStringLiteral("9999"), file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, QStringLiteral("Nie ma faktury o identyfikatorze 9999.\n"));
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

TEST_F(HaulixPrintTest, AFailureLeavesAnEarlierFileAsItWas)
{
    const QString file = target(QStringLiteral("zlecenie.pdf"));
    {
        QFile earlier(file);
        ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
        earlier.write("poprzedni");
    }
    const ProgramRun run = runPrint({QStringLiteral("--db"), db.path(), QStringLiteral("order"),
                                   QStringLiteral("9999"), file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors, QStringLiteral("Nie ma zlecenia o identyfikatorze 9999.\n"));
    QFile earlier(file);
    ASSERT_TRUE(earlier.open(QIODevice::ReadOnly));
    EXPECT_EQ(earlier.readAll(), "poprzedni");
}

TEST_F(HaulixPrintTest, AnUnreadableDatabaseOrFileIsOneLine)
{
    const QString file = target(QStringLiteral("faktura.pdf"));
    ProgramRun run = runPrint({QStringLiteral("--db"), target(QStringLiteral("nie-ma.fdb")),
                             QStringLiteral("invoice"), QString::number(invoice), file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors.count(u'\n'), 1) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.startsWith(QStringLiteral("Nie można otworzyć bazy danych ")));

    const QString notADatabase = target(QStringLiteral("tekst.fdb"));
    {
        QFile text(notADatabase);
        ASSERT_TRUE(text.open(QIODevice::WriteOnly));
        text.write("to nie jest baza danych");
    }
    run = runPrint({QStringLiteral("--db"), notADatabase, QStringLiteral("invoice"),
                    QString::number(invoice), file});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors.count(u'\n'), 1) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.startsWith(QStringLiteral("Nie można otworzyć bazy danych ")));

    const QString nowhere = target(QStringLiteral("brak/katalogu/faktura.pdf"));
    run = runPrint({QStringLiteral("--db"), db.path(), QStringLiteral("invoice"),
                    QString::number(invoice), nowhere});
    EXPECT_EQ(run.exitCode, 1);
    EXPECT_EQ(run.errors.count(u'\n'), 1) << run.errors.toStdString();
    EXPECT_TRUE(run.errors.startsWith(QStringLiteral("Nie można zapisać pliku ") + nowhere));
    EXPECT_FALSE(QFile::exists(file));
    EXPECT_FALSE(QFile::exists(nowhere));
}

TEST_F(HaulixPrintTest, AWrongCommandLineShowsTheUsage)
{
    ProgramRun run = runPrint({QStringLiteral("--db"), db.path(), QStringLiteral("paragon"),
                             QStringLiteral("1"), target(QStringLiteral("x.pdf"))});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_TRUE(run.errors.startsWith(QStringLiteral("Nieznany wydruk: paragon.")));
    EXPECT_TRUE(run.errors.contains(QStringLiteral("invoice-with-attachment ID")));

    run = runPrint({QStringLiteral("--db"), db.path(), QStringLiteral("invoice"),
                    QStringLiteral("pierwsza"), target(QStringLiteral("x.pdf"))});
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.errors,
              QStringLiteral("Identyfikator musi być dodatnią liczbą całkowitą: pierwsza\n"));
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
        const ProgramRun run
            = runPrint(QStringList{QStringLiteral("--db"), db.path()} + job + QStringList{file});
        EXPECT_EQ(run.exitCode, 0) << run.errors.toStdString();
        return run.exitCode == 0 ? Poppler::text(file) : QString();
    };
    const QString july1 = QStringLiteral("2026-07-01"), july31 = QStringLiteral("2026-07-31");

    QString text = print({QStringLiteral("carriers-paid"), july1, july31,
                          QStringLiteral("--carrier"), QString::number(CarrierKey)});
    EXPECT_TRUE(text.contains(" Faktury przewoźników zapłacone od 2026-07-01 do dnia 2026-07-31"));
    EXPECT_TRUE(text.contains("ŻW-1"));
    EXPECT_TRUE(text.contains("ŻWIREK ; Łódź"));
    text = print({QStringLiteral("carriers-issued"), QStringLiteral("--carrier"),
                  QString::number(ClientKey), july1, july31});
    EXPECT_TRUE(text.contains("GĘ-1"));
    EXPECT_FALSE(text.contains("ŻW-1"));
    text = print({QStringLiteral("carriers-unpaid")});
    EXPECT_TRUE(text.contains("GĘ-1"));
    EXPECT_FALSE(text.contains("ŻW-1"));
    text = print({QStringLiteral("carriers-payment")});
    EXPECT_TRUE(text.contains("GĘŚLA"));
    EXPECT_FALSE(text.contains("ŻW-1"));

    for (const auto &[arguments, error] :
         {std::pair{
              QStringList{QStringLiteral("carriers-paid"), july1},
              QStringLiteral("Wydruk carriers-paid wymaga argumentów: OD DO [--carrier ID].")},
          {QStringList{QStringLiteral("carriers-paid"), QStringLiteral("2026-13-01"), july31},
           QStringLiteral("Data musi mieć postać rrrr-mm-dd: 2026-13-01")},
          {QStringList{QStringLiteral("carriers-paid"), july31, july1},
           QStringLiteral("Początek okresu jest późniejszy niż jego koniec.")},
          {QStringList{QStringLiteral("carriers-unpaid"), QStringLiteral("--carrier"),
                       QStringLiteral("ŻWIREK")},
           QStringLiteral(
               "Identyfikator przewoźnika musi być dodatnią liczbą całkowitą: ŻWIREK")}}) {
        const ProgramRun run = runPrint(QStringList{QStringLiteral("--db"), db.path()} + arguments
                                      + QStringList{target(QStringLiteral("zle.pdf"))});
        EXPECT_EQ(run.exitCode, 2) << arguments.join(u' ').toStdString();
        EXPECT_TRUE(run.errors.startsWith(error)) << run.errors.toStdString();
    }
    EXPECT_FALSE(QFile::exists(target(QStringLiteral("zle.pdf"))));
}
