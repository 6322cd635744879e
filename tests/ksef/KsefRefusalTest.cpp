// What stops an e-invoice: data to complete first, and a document the
// schema refuses, each said in Polish with no file written.
#include "KsefFixture.h"
#include "KsefError.h"
#include "KsefExport.h"
#include "KsefSchema.h"
#include "TKontrahenciObj.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

class KsefRefusalTest : public KsefFixture
{
protected:
    // The message of the refusal; the file is left as it was.
    QString refusal(const QString &path)
    {
        try {
            KsefExport(db.connection()).save(invoice, path, Created);
        } catch (const KsefError &error) {
            return error.message();
        }
        return QString();
    }

    QString target(const QString &name) const { return dir.filePath(name); }
};

TEST_F(KsefRefusalTest, MissingNipsAndBankAccountNameTheRecordToCompleteAndWriteNothing)
{
    const QString path = target(QStringLiteral("faktura.xml"));
    db.exec(QStringLiteral("UPDATE DANE_FIRMY SET NIP = ''"));
    EXPECT_EQ(refusal(path), "Faktura 007/07/2026: w danych firmy nie ma NIP-u sprzedawcy. "
                             "Uzupełnij NIP w danych firmy.");
    EXPECT_FALSE(QFile::exists(path));

    db.exec(QStringLiteral("UPDATE DANE_FIRMY SET NIP = '725-100-20-30'"));
    db.exec(QStringLiteral("UPDATE KONTRAHENCI SET NIP = ' ' WHERE ID_KONTRAHENTA = 1"));
    EXPECT_EQ(refusal(path), "Faktura 007/07/2026: kontrahent „Gęśla Jaźń S.A.” nie ma NIP-u. "
                             "Uzupełnij NIP w kartotece kontrahentów (nabywca spoza Polski: "
                             "jego kraj).");

    db.exec(QStringLiteral("UPDATE KONTRAHENCI SET NIP = '521-300-28-29'"));
    db.exec(QStringLiteral("UPDATE KONTA_BANKOWE SET RACHUNEK = ''"));
    EXPECT_EQ(refusal(path), "Faktura 007/07/2026: rachunek bankowy „Bank Śląski” nie ma "
                             "numeru. Uzupełnij numer w kartotece rachunków bankowych.");
    db.exec(QStringLiteral("UPDATE FAKTURY SET KONTO_BANKOWE = 0"));
    EXPECT_EQ(refusal(path), "Faktura 007/07/2026: nie wskazano rachunku bankowego. Uzupełnij "
                             "rachunek w kartotece rachunków bankowych.");
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(QDir(dir.path()).isEmpty());
}

TEST_F(KsefRefusalTest, ACorrectionOrARateTheStructureHasNoFieldForIsNamed)
{
    const QString path = target(QStringLiteral("f.xml"));
    db.exec(QStringLiteral("INSERT INTO DOKUMENTY (NAZWA) VALUES ('Faktura VAT korygująca')"));
    db.exec(QStringLiteral("UPDATE FAKTURY SET ID_RODZAJ_DOK = 2"));
    EXPECT_EQ(refusal(path),
              "Faktura 007/07/2026: dokument „Faktura VAT korygująca” jest korektą, a program "
              "nie przechowuje danych faktury korygowanej. E-faktury nie utworzono.");

    db.exec(QStringLiteral("UPDATE FAKTURY SET ID_RODZAJ_DOK = 1"));
    db.exec(QStringLiteral("INSERT INTO STAWKI_VAT (OPIS, PROCENT) VALUES ('19% DE', 0.19)"));
    addPosition(invoice, QStringLiteral("Przewóz po Niemczech"), 1, 100, 7);
    EXPECT_EQ(refusal(path),
              "Faktura 007/07/2026: stawki VAT „19% DE” pozycji „Przewóz po Niemczech” nie ma "
              "w strukturze FA(3). Popraw stawkę w tabeli stawek VAT.");
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(KsefRefusalTest, ADocumentTheSchemaRefusesNamesTheElementAndLeavesAnEarlierFile)
{
    const QString path = target(QStringLiteral("faktura.xml"));
    {
        QFile earlier(path);
        ASSERT_TRUE(earlier.open(QIODevice::WriteOnly));
        earlier.write("poprzedni");
    }
    db.exec(QStringLiteral("UPDATE DANE_FIRMY SET NIP = '012-345'"));
    const QString message = refusal(path);
    EXPECT_TRUE(message.startsWith("Faktura 007/07/2026 nie jest zgodna ze schematem FA(3): "
                                   "element „NIP” sprzedawcy (wiersz "))
        << message.toStdString();
    EXPECT_TRUE(message.endsWith("): wartość „012345” nie ma postaci wymaganej przez schemat. "
                                 "Pliku nie zapisano."))
        << message.toStdString();
    EXPECT_EQ(fileText(path), "poprzedni");

    db.exec(QStringLiteral("UPDATE DANE_FIRMY SET NIP = '725-100-20-30'"));
    db.exec(QStringLiteral("UPDATE FAKTURY SET NUMER_PELNY = ''"));
    EXPECT_TRUE(refusal(path).contains("element „P_2” (wiersz ")) << refusal(path).toStdString();
    EXPECT_TRUE(refusal(path).contains("wartość jest pusta")) << refusal(path).toStdString();
}

TEST_F(KsefRefusalTest, TheSchemaSaysWhatIsMissingOrOutOfPlace)
{
    const KsefSchema schema;
    QFile example(QStringLiteral(KSEF_SCHEMA_DIR "/example-fa3.xml"));
    ASSERT_TRUE(example.open(QIODevice::ReadOnly));
    const QByteArray valid = example.readAll();
    EXPECT_EQ(schema.problems(valid), QStringList());

    const QStringList withoutTotal
        = schema.problems(QByteArray(valid).replace("<P_15>1230.00</P_15>", ""));
    EXPECT_EQ(withoutTotal,
              QStringList{"element „Adnotacje” (wiersz 50): element nie jest w tym miejscu "
                          "dozwolony (oczekiwany: P_14_1W, P_13_2, P_13_3, P_13_4, P_13_5, "
                          "P_13_6_1, P_13_6_2, P_13_6_3, P_13_7, P_13_8)"});
    const QStringList unknownRate
        = schema.problems(QByteArray(valid).replace("<P_12>23</P_12>", "<P_12>19</P_12>"));
    ASSERT_EQ(unknownRate.size(), 1) << unknownRate.join(u'\n').toStdString();
    EXPECT_TRUE(unknownRate[0].startsWith("element „P_12” pozycji faktury (wiersz "));
    EXPECT_TRUE(unknownRate[0].endsWith(
        "wartość „19” nie należy do wartości dopuszczonych przez schemat"))
        << unknownRate[0].toStdString();
    EXPECT_EQ(schema.problems("<Faktura>").value(0),
              "wiersz 1: dokument nie jest poprawnym XML-em");
}

TEST_F(KsefRefusalTest, XmllintAcceptsTheWrittenFile)
{
    const QString xmllint = QStandardPaths::findExecutable(QStringLiteral("xmllint"));
    ASSERT_FALSE(xmllint.isEmpty()) << "xmllint (libxml2-utils) is installed by scripts/setup.sh";
    const QString path = target(QStringLiteral("faktura.xml"));
    ASSERT_EQ(refusal(path), QString());
    QProcess run;
    run.start(xmllint, {QStringLiteral("--nonet"), QStringLiteral("--noout"),
                        QStringLiteral("--schema"),
                        QStringLiteral(KSEF_SCHEMA_DIR "/schemat_FA3.xsd"), path});
    ASSERT_TRUE(run.waitForFinished(60000));
    EXPECT_EQ(run.exitCode(), 0) << run.readAllStandardError().toStdString();
    EXPECT_TRUE(run.readAllStandardError().contains("validates"));
}
