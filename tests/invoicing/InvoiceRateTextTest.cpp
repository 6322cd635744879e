#include "Connection.h"
#include "InvoiceRateText.h"
#include "TZlecenia_przychObj.h"

#include <gtest/gtest.h>

TEST(InvoiceRateText, EachPartNeedsItsRateAndQuantityWithoutATariffTheAgreedAmount)
{
    Connection unused;   // the record's, never opened
    // A tariff order: 12.5 t at 80.00, 310 laden km at 3.40, 2 hours at 95.00.
    TZlecenia_przychObj order(unused);
    order.IDTARYFY = 3;
    order.KM_PUSTE = 12.5;
    order.STAWKA_KMPUSTY = 80.0;
    order.KM_LADOWNE = 310;
    order.STAWKA_KMLAD = 3.4;
    order.ILOSC_GODZIN = 2;
    order.STAWKA_GODZINY = 95.0;
    EXPECT_EQ(InvoiceRateText::of(order, false),
              QStringLiteral("80,00 PLN/ tonę 3,40 PLN/ kilometr ładowny 95,00 PLN/ godzinę; \r\n"
                             "12,500 ton    310,00 km ładownych 2,00 godzn; "));

    order.STAWKA_GODZINY = 0;   // hours without a rate
    TZlecenia_przychObj kilometres = order;
    kilometres.STAWKA_KMPUSTY = 0;
    EXPECT_EQ(InvoiceRateText::of(kilometres, true),
              QStringLiteral("3,40 PLN za każdy kilometr\r\n310,00 km"));

    order.KM_LADOWNE = 0;   // a rate without kilometres
    EXPECT_EQ(InvoiceRateText::of(order, false),
              QStringLiteral("80,00 PLN/ tonę\r\n12,500 ton    "));
    order.STAWKA_KMPUSTY = 0;
    EXPECT_TRUE(InvoiceRateText::of(order, false).isEmpty());

    order.IDTARYFY = 0;
    order.KWOTA = 1234.5;
    EXPECT_EQ(InvoiceRateText::of(order, false), QStringLiteral("1\u00A0234,50 ; "));
}
