#include "CentRounding.h"
#include "Connection.h"
#include "InvoiceLine.h"
#include "InvoiceTotals.h"
#include "TFaktury_pozycjeObj.h"
#include "TStawki_vatObj.h"

#include <gtest/gtest.h>

// Records need a connection to belong to; these are never read or written.
class InvoiceLineTest : public testing::Test
{
protected:
    TStawki_vatObj rate(int key, const QString &label, double fraction)
    {
        TStawki_vatObj r(unused);
        r.ID_STAWKI = key;
        r.OPIS = label;
        r.PROCENT = fraction;
        return r;
    }

    InvoiceLine line(double quantity, double price, const TStawki_vatObj &vat,
                     const QString &text = QStringLiteral("Przewóz"))
    {
        TFaktury_pozycjeObj position(unused);
        position.TRESC = text;
        position.ILOSC = quantity;
        position.JM = QStringLiteral("usł.");
        position.CENA_NETTO = price;
        position.ID_VAT = vat.ID_STAWKI;
        return InvoiceLine::of(position, vat);
    }

    Connection unused;
    const TStawki_vatObj standard = rate(1, QStringLiteral("23%"), 0.23);
};

TEST(CentRounding, AddsHalfAGroszAndCutsTheRest)
{
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(10.125), 10.13);
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(10.1249), 10.12);
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(2.3299), 2.33);
    // Below zero the cut goes towards zero, as the printouts always did.
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(-10.125), -10.12);
}

TEST_F(InvoiceLineTest, ProductIsRoundedBeforeTheVatIsTakenFromIt)
{
    const InvoiceLine l = line(1, 10.125, standard);
    EXPECT_FALSE(l.textOnly);
    EXPECT_EQ(l.quantity, QStringLiteral("1,0"));
    EXPECT_EQ(l.unitPrice, QStringLiteral("10,13"));
    EXPECT_EQ(l.net, QStringLiteral("10,13"));
    EXPECT_EQ(l.rate, QStringLiteral("23%"));
    EXPECT_EQ(l.vat, QStringLiteral("2,33"));
    EXPECT_EQ(l.gross, QStringLiteral("12,46"));
    EXPECT_DOUBLE_EQ(l.grossValue, 12.46);
}

TEST_F(InvoiceLineTest, QuantityZeroIsTextOnlyAndChangesNoTotal)
{
    InvoiceTotals totals;
    totals.add(line(1, 100, standard));
    const InvoiceLine text = line(0, 500, standard, QStringLiteral("Zgodnie z umową nr 5/2026"));
    EXPECT_TRUE(text.textOnly);
    EXPECT_EQ(text.name, QStringLiteral("Zgodnie z umową nr 5/2026"));
    for (const QString &cell : {text.unit, text.quantity, text.unitPrice, text.net, text.rate,
                                text.vat, text.gross})
        EXPECT_TRUE(cell.isEmpty());
    totals.add(text);
    EXPECT_DOUBLE_EQ(totals.invoice().net, 100.0);
    EXPECT_DOUBLE_EQ(totals.invoice().gross, 123.0);
    EXPECT_DOUBLE_EQ(totals.group(0).net, 100.0);
}

TEST_F(InvoiceLineTest, KeysOneAndFiveShareTheStandardGroupOthersOnlyTheInvoice)
{
    InvoiceTotals totals;
    totals.add(line(1, 100, standard));
    totals.add(line(1, 50, rate(5, QStringLiteral("23% usł."), 0.23)));
    totals.add(line(1, 30, rate(2, QStringLiteral("0%"), 0.0)));
    totals.add(line(1, 20, rate(3, QStringLiteral("zw."), 0.0)));
    totals.add(line(1, 10, rate(4, QStringLiteral("NP"), 0.0)));
    totals.add(line(1, 1000, rate(6, QStringLiteral("8%"), 0.08)));

    EXPECT_DOUBLE_EQ(totals.group(0).net, 150.0);
    EXPECT_DOUBLE_EQ(totals.group(0).vat, 34.5);
    EXPECT_DOUBLE_EQ(totals.group(0).gross, 184.5);
    EXPECT_DOUBLE_EQ(totals.group(1).net, 30.0);
    EXPECT_DOUBLE_EQ(totals.group(2).net, 20.0);
    EXPECT_DOUBLE_EQ(totals.group(3).net, 10.0);
    EXPECT_DOUBLE_EQ(totals.invoice().net, 1210.0);
    EXPECT_DOUBLE_EQ(totals.invoice().vat, 114.5);
    EXPECT_DOUBLE_EQ(totals.invoice().gross, 1324.5);
}

TEST_F(InvoiceLineTest, ARateThatIsNotThereGivesNoVat)
{
    const InvoiceLine l = line(2, 10, rate(0, QString(), 0.0));
    EXPECT_EQ(l.net, QStringLiteral("20,00"));
    EXPECT_TRUE(l.rate.isEmpty());
    EXPECT_EQ(l.vat, QStringLiteral("0,00"));
    EXPECT_EQ(l.gross, QStringLiteral("20,00"));
}
