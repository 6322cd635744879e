// "Eksport KSeF..." of the invoicing form: the last invoice as an e-invoice
// file, what is missing said before a file is asked for.
#include "KsefSchema.h"
#include "KsefXml.h"
#include "OrderInvoicingFixture.h"
#include "ScriptedFilePrompts.h"
#include "ScriptedMessages.h"
#include "ScriptedModalRunner.h"
#include "TBitBtn.h"
#include "TfrmFakturowanie.h"
#include "TfrmWybierzZlecenia.h"
#include "TframeListView.h"
#include "Typing.h"

#include <QFile>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>

class KsefForm : public OrderInvoicingFixture
{
protected:
    // The form after invoicing one order of client A through it, the
    // printing declined.
    std::unique_ptr<TfrmWybierzZlecenia> invoicedForm()
    {
        const int order = addOrder([](TZlecenia_przychObj &o) {
            o.DATA = DateTime::fromDate(QDate::currentDate());
        });
        auto form = TfrmRODefault::create<TfrmWybierzZlecenia>(nullptr, ClientA, order);
        Typing::activate(form.get());
        TListView &rows = *form->frameListView1->lvMain;
        rows.setFocus();
        rows.setSelectedIndex(rows.findByKey(order));
        QTest::keyClick(&rows, Qt::Key_Space);
        scriptedModalRunner().expect<TfrmFakturowanie>([](TfrmFakturowanie &dialog) {
            Typing::click(dialog.btnOk);
            return dialog.result();
        });
        scriptedMessages().expect(MessageService::No);
        Typing::accelerator(Qt::Key_Z);
        scriptedMessages().clear();
        return form;
    }

    // Presses the button; the one message it shows.
    QString exportMessage(TfrmWybierzZlecenia &form)
    {
        scriptedMessages().clear();
        scriptedMessages().expect();
        Typing::click(form.btnEksportKsef);
        EXPECT_EQ(scriptedMessages().shown().size(), 1u);
        if (scriptedMessages().shown().empty())
            return QString();
        EXPECT_EQ(scriptedMessages().shown().back().caption, "Eksport KSeF");
        return scriptedMessages().shown().back().text;
    }

    QTemporaryDir dir;
};

TEST_F(KsefForm, MissingDataIsSaidFirstThenTheFileIsAskedForAndWrittenUnlessCancelled)
{
    const auto form = invoicedForm();
    ASSERT_GT(form->lastInvoice(), 0);
    const QString number = form->Label6->text();
    EXPECT_EQ(form->btnEksportKsef->text(), "Eksport KSeF...");

    EXPECT_EQ(exportMessage(*form), "Faktura " + number + ": w danych firmy nie ma NIP-u "
                                    "sprzedawcy. Uzupełnij NIP w danych firmy.");
    db.exec(QStringLiteral(
        "INSERT INTO DANE_FIRMY (NAZWA, KOD, MIEJSCOWOSC, ADRES, NIP, MIEJSCE_WYSTAWIANIA) "
        "VALUES ('Spedycja Żuraw Sp. z o.o.', '90-001', 'Łódź', 'Piotrkowska 100', "
        "'7251002030', 'Łódź')"));
    EXPECT_TRUE(exportMessage(*form).contains("kontrahent „ŻURAW Sp. z o.o.” nie ma NIP-u"));
    db.exec(QStringLiteral("UPDATE KONTRAHENCI SET NIP = '521-300-28-29'"));
    const QString refused = exportMessage(*form);
    EXPECT_TRUE(refused.startsWith("Faktura " + number + " nie jest zgodna ze schematem FA(3): "
                                   "element „AdresL1” nabywcy (wiersz "))
        << refused.toStdString();
    EXPECT_TRUE(refused.endsWith("wartość jest pusta. Pliku nie zapisano."))
        << refused.toStdString();
    EXPECT_TRUE(scriptedFilePrompts().asked().empty());

    db.exec(QStringLiteral("UPDATE KONTRAHENCI SET ADRES = 'ul. Źródlana 8', KOD = '00-950', "
                           "MIEJSCOWOSC = 'Warszawa'"));
    const QString path = dir.filePath(QStringLiteral("faktura.xml"));
    scriptedFilePrompts().answer(path);
    EXPECT_EQ(exportMessage(*form), "Zapisano fakturę " + number + " w pliku " + path + ".");
    ASSERT_EQ(scriptedFilePrompts().asked().size(), 1u);
    const FilePrompt &asked = scriptedFilePrompts().asked().front();
    EXPECT_EQ(asked.caption, "Eksport KSeF");
    EXPECT_EQ(asked.fileName, QString(number).replace(u'/', u'_') + ".xml");
    EXPECT_EQ(asked.filter, "Pliki XML|*.xml|Wszystkie pliki|*.*");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray document = file.readAll();
    EXPECT_EQ(KsefSchema().problems(document), QStringList());
    EXPECT_EQ(KsefXml(document).one("Fa/P_2"), number);
    EXPECT_EQ(KsefXml(document).one("Fa/P_13_1"), "1000.00");

    // A cancelled file dialog writes nothing and says nothing.
    scriptedMessages().clear();
    scriptedFilePrompts().answer(QString());
    Typing::click(form->btnEksportKsef);
    EXPECT_TRUE(scriptedMessages().shown().empty());
    EXPECT_EQ(scriptedFilePrompts().asked().size(), 2u);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Files), QStringList{"faktura.xml"});
}
