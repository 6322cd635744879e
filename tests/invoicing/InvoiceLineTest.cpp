#include "CentRounding.h"
#include "Connection.h"
#include "InvoiceLine.h"
#include "TFaktury_pozycjeObj.h"
#include "TStawki_vatObj.h"

#include <gtest/gtest.h>

// Lines, their rounding and the VAT groups are read back from the printed
// invoice and the e-invoice; here what neither can reach.
TEST(CentRounding, AddsHalfAGroszAndCutsTheRest)
{
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(10.125), 10.13);
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(10.1249), 10.12);
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(2.3299), 2.33);
    // Below zero the cut goes towards zero, as the printouts always did.
    EXPECT_DOUBLE_EQ(CentRounding::halfUp(-10.125), -10.12);
}

TEST(InvoiceLine, ARateThatIsNotThereGivesNoVat)
{
    Connection unused;   // the records', never opened
    TFaktury_pozycjeObj position(unused);
    position.TRESC = QStringLiteral("Przewóz");
    position.ILOSC = 2;
    position.CENA_NETTO = 10;
    TStawki_vatObj none(unused);
    none.ID_STAWKI = 0;
    none.PROCENT = 0.0;
    const InvoiceLine l = InvoiceLine::of(position, none);
    EXPECT_EQ(l.net, QStringLiteral("20,00"));
    EXPECT_TRUE(l.rate.isEmpty());
    EXPECT_EQ(l.vat, QStringLiteral("0,00"));
    EXPECT_EQ(l.gross, QStringLiteral("20,00"));
}
