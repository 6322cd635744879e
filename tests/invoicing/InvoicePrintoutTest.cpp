#include "AmountInWords.h"
#include "InvoicingFixture.h"
#include "PrintoutError.h"
#include "ScriptedMessages.h"
#include "TfrmRachunekPL.h"


class InvoicePrintoutTest : public InvoicingFixture
{
protected:
    QStringList print(int invoiceKey, bool perKilometre = false)
    {
        TfrmRachunekPL printout(db.connection(), invoiceKey, perKilometre);
        return printed(printout.qrRachunekPL().prepare());
    }

    // An invoice for one tariff order with two goods.
    int oneOrderInvoice()
    {
        const int invoice = addInvoice();
        addPosition(invoice, QStringLiteral("Usługa transportowa Łódź - Warszawa"), 1, 1150, 1);
        const int order = addOrder([invoice](TZlecenia_przychObj &o) {
            o.IDFAKTURY = invoice;
            o.IDTARYFY = 1;
            o.KM_LADOWNE = 135;
            o.STAWKA_KMLAD = 4.2;
            o.KM_PUSTE = 20.5;
            o.STAWKA_KMPUSTY = 28.5;
            o.POJAZD = QStringLiteral("EL 4521K");
            o.NACZEPA = QStringLiteral("EL 7730N");
        });
        addGoods(order, QStringLiteral("Cement workowany"), 12.5);
        addGoods(order, QStringLiteral("Płyty gipsowe"), 8);
        return invoice;
    }
};

TEST_F(InvoicePrintoutTest, TitleSellerAndBuyerComeFromTheCompanyTheInvoiceAndItsClient)
{
    const QStringList texts = print(oneOrderInvoice());
    EXPECT_TRUE(inOrder(texts, {
        "Łódź dn.  2026-07-10", "Faktura VAT Nr 007/07/2026", "ORYGINAŁ / KOPIA",
        "SPRZEDAWCA:", "NABYWCA:", "Spedycja Żuraw Sp. z o.o.", "Gęśla Jaźń S.A.",
        "Ul.", "Piotrkowska 100", "90-001 Łódź", "NIP:", "725-100-20-30",
        "Bank Śląski 12 1020 3352 0000 1102 0123 4567", "ul. Źródlana 8", "00-950 Warszawa",
        "NIP:", "521-300-28-29", "Ident:", "4711",
        "Data sprzedaży:", "2026-07-08", "Sposób zapłaty:", "przelew",
        "Termin zapłaty:", "2026-07-24"}));
}

TEST_F(InvoicePrintoutTest, OneOrderIsDescribedWithItsGoodsRatesAndVehicle)
{
    const QStringList texts = print(oneOrderInvoice());
    EXPECT_TRUE(inOrder(texts, {
        "Dotyczy zlecenia: 00000042", "Za: Usługi haulixowe w dniu:", "2026-07-06",
        "Przewóz towaru:", "Cement workowany 12,5 t ; Płyty gipsowe 8 t", "Stawka:",
        "28,50 PLN/ tonę 4,20 PLN/ kilometr ładowny\n20,500 ton    135,00 km ładownych",
        "Pojazd:", "EL 4521K / EL 7730N", "Nr karty:", " --- ", "Nr zlecenia:", " --- "}));
    // The kilometre wording follows the flag.
    EXPECT_TRUE(print(oneOrderInvoice(), true).contains(
        "28,50 PLN/ tonę 4,20 PLN za każdy kilometr\n20,500 ton    135,00 km"));
}

TEST_F(InvoicePrintoutTest, SeveralOrdersReferToTheAttachmentNoneSayNone)
{
    const int several = addInvoice();
    for (int i = 0; i < 2; ++i)
        addOrder([several](TZlecenia_przychObj &o) { o.IDFAKTURY = several; });
    const QStringList texts = print(several);
    EXPECT_EQ(texts.count(" w/g załącznika do faktury"), 3) << texts.join(u'|').toStdString();
    EXPECT_EQ(texts.count(" --- "), 3);
    EXPECT_FALSE(texts.join(u'|').contains("Dotyczy zlecenia"));

    const QStringList none = print(addInvoice());
    EXPECT_EQ(none.count(" brak"), 3) << none.join(u'|').toStdString();
    EXPECT_EQ(none.count(" --- "), 0);
}

TEST_F(InvoicePrintoutTest, DetailLinesVatGroupsAndTheAmountDue)
{
    const int invoice = addInvoice();
    addPosition(invoice, QStringLiteral("Fracht"), 1, 10.125, 1);
    addPosition(invoice, QStringLiteral("Tekst bez kwoty"), 0, 999, 1);
    addPosition(invoice, QStringLiteral("Postój"), 2, 50, 5);
    addPosition(invoice, QStringLiteral("Transport zagraniczny"), 1, 300, 2);
    addPosition(invoice, QStringLiteral("Ubezpieczenie"), 1, 20, 3);
    addPosition(invoice, QStringLiteral("Przeładunek"), 1, 100, 6);
    TfrmRachunekPL printout(db.connection(), invoice);
    const QStringList texts = printed(printout.qrRachunekPL().prepare());

    EXPECT_TRUE(inOrder(texts, {"Nazwa towaru lub usługi", "Jm", "Ilość", "PKWiU", "wart.jedn.",
                                "wartość netto", "Vat%", "wart.VAT", "Wartość Brutto",
                                "Fracht", "usł.", "1,0", "10,13", "10,13", "23%", "2,33", "12,46",
                                "Tekst bez kwoty", "Postój"}));
    // The text line prints nothing but its text.
    const qsizetype textLine = texts.indexOf("Tekst bez kwoty");
    EXPECT_EQ(texts.at(textLine + 1), "Postój");

    // 10.13 + 100 + 300 + 20 + 100 net; 2.33 + 23 + 8 VAT.
    EXPECT_TRUE(inOrder(texts, {"Netto", "VAT", "Brutto", "Razem:", "530,13", "33,33", "563,46",
                                "W tym:", "23%", "110,13", "25,33", "135,46",
                                "0%", "300,00", "0,00", "300,00",
                                "zw.", "20,00", "0,00", "20,00",
                                "NP", "0,00", "0,00", "0,00",
                                "Do zapłaty:", "563,46", "Słownie złotych:",
                                AmountInWords::words(563.46),
                                "Niniejsza faktura jest jednocześnie wezwaniem do zapłaty."}));
    EXPECT_NEAR(printout.printout().amountDue, 563.46, 1e-9);
}

TEST_F(InvoicePrintoutTest, ReceiverLineKeepsItsPlaceWithoutAName)
{
    const auto receiverOf = [this](const QString &receiver) {
        const int invoice = addInvoice([&](TFakturyObj &f) { f.ODEBRAL = receiver; });
        TfrmRachunekPL printout(db.connection(), invoice);
        const std::vector<ReportPage> &pages = printout.qrRachunekPL().prepare();
        const QStringList texts = pages.back().texts();
        // The receiver stands above the receiver's caption, the issuer above his.
        const qsizetype caption = texts.indexOf(
            "Imie, nazwisko i podpis osoby upoważnionej do odbioru faktury");
        EXPECT_TRUE(
            texts.contains("Imie, nazwisko i podpis osoby upoważnionej do wystawienia faktury"));
        EXPECT_TRUE(texts.contains("Anna Łęcka"));
        return caption >= 2 ? texts.at(caption - 2) : QStringLiteral("?");
    };
    EXPECT_EQ(receiverOf(QStringLiteral("UPOWAŻNIENIE")), "   ");
    EXPECT_EQ(receiverOf(QStringLiteral("upoważnienie")), "   ");
    EXPECT_EQ(receiverOf(QString()), "    ");
    EXPECT_EQ(receiverOf(QStringLiteral("Jan Źdźbło")), "Jan Źdźbło");
}

TEST_F(InvoicePrintoutTest, OptionalLinesShowOnlyWhenThereIsSomethingToShowAndTheShortSaleDate)
{
    const int plain = addInvoice();
    db.exec(QStringLiteral("UPDATE KONTRAHENCI SET NR_IDENT = 0"));
    QStringList texts = print(plain);
    EXPECT_FALSE(texts.contains("Ident:"));
    EXPECT_TRUE(texts.contains("Piotrkowska 100"));

    db.exec(QStringLiteral("UPDATE DANE_FIRMY SET POBOX = '112'"));
    texts = print(plain);
    EXPECT_TRUE(texts.contains("Piotrkowska 100 ,skr.poczt 112"));

    const int remarked
        = addInvoice([](TFakturyObj &f) { f.UWAGI = QStringLiteral("Płatne z góry"); });
    texts = print(remarked);
    EXPECT_TRUE(inOrder(texts, {"2026-07-24", "Płatne z góry", "Za: Usługi haulixowe w dniu:"}));

    // A short sale date shows month and year.
    db.exec(QStringLiteral("INSERT INTO KONFIGURACJA (POLE, TYP, VALUE_INT) "
                           "VALUES ('DataSprzedazyKrotka', 'B', 1)"));
    EXPECT_TRUE(inOrder(print(plain), {"Data sprzedaży:", "07-2026", "Sposób zapłaty:"}));
}

TEST_F(InvoicePrintoutTest, AMissingInvoiceIsSaidAndNothingPrints)
{
    TfrmRachunekPL printout(db.connection(), 404);
    EXPECT_THROW(printout.qrRachunekPL().prepare(), PrintoutError);
    scriptedMessages().expect(MessageService::Ok);
    EXPECT_FALSE(printout.qrRachunekPL().prepareShowingErrors());
    ASSERT_EQ(scriptedMessages().shown().size(), 1u);
    EXPECT_TRUE(scriptedMessages().shown().front().text.contains(
        "Nie ma faktury o identyfikatorze 404."));
}
