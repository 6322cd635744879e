#include "Connection.h"
#include "InvoiceRateText.h"
#include "TZlecenia_przychObj.h"

#include <gtest/gtest.h>

class InvoiceRateTextTest : public testing::Test
{
protected:
    // A tariff order: 12.5 t at 80.00, 310 laden km at 3.40, 2 hours at 95.00.
    TZlecenia_przychObj tariffOrder()
    {
        TZlecenia_przychObj order(unused);
        order.IDTARYFY = 3;
        order.KM_PUSTE = 12.5;
        order.STAWKA_KMPUSTY = 80.0;
        order.KM_LADOWNE = 310;
        order.STAWKA_KMLAD = 3.4;
        order.ILOSC_GODZIN = 2;
        order.STAWKA_GODZINY = 95.0;
        return order;
    }

    Connection unused;   // the record's, never opened
};

TEST_F(InvoiceRateTextTest, TariffRatesOverTheirQuantities)
{
    EXPECT_EQ(InvoiceRateText::of(tariffOrder(), false),
              QStringLiteral("80,00 PLN/ tonę 3,40 PLN/ kilometr ładowny 95,00 PLN/ godzinę; \r\n"
                             "12,500 ton    310,00 km ładownych 2,00 godzn; "));
}

TEST_F(InvoiceRateTextTest, EveryKilometreWordingWhenAsked)
{
    TZlecenia_przychObj order = tariffOrder();
    order.STAWKA_KMPUSTY = 0;
    order.STAWKA_GODZINY = 0;
    EXPECT_EQ(InvoiceRateText::of(order, true),
              QStringLiteral("3,40 PLN za każdy kilometr\r\n310,00 km"));
}

TEST_F(InvoiceRateTextTest, APartNeedsBothItsRateAndItsQuantity)
{
    TZlecenia_przychObj order = tariffOrder();
    order.KM_LADOWNE = 0;   // rate without kilometres
    order.STAWKA_GODZINY = 0;   // hours without a rate
    EXPECT_EQ(InvoiceRateText::of(order, false),
              QStringLiteral("80,00 PLN/ tonę\r\n12,500 ton    "));
    order.STAWKA_KMPUSTY = 0;
    EXPECT_TRUE(InvoiceRateText::of(order, false).isEmpty());
}

TEST_F(InvoiceRateTextTest, WithoutATariffTheAgreedAmount)
{
    TZlecenia_przychObj order = tariffOrder();
    order.IDTARYFY = 0;
    order.KWOTA = 1234.5;
    EXPECT_EQ(InvoiceRateText::of(order, false), QStringLiteral("1\u00A0234,50 ; "));
}
