#include "CarrierInvoicesFixture.h"

#include "TKontrahenciObj.h"
#include "TZlecenia_przychObj.h"

CarrierInvoicesFixture::CarrierInvoicesFixture()
{
    db.exec(QStringLiteral("INSERT INTO DANE_FIRMY (NAZWA) VALUES ('%1')").arg(Company));
    TKontrahenciObj carrier(db.connection());
    for (const auto &[shortName, name, town, street] :
         {std::tuple{"ALFA TRANS", "Alfa Trans Sp. z o.o.", "Gdańsk", "ul. Długa 1"},
          {"BETA CARGO", "Beta Cargo S.A.", "Poznań", "ul. Kupiecka 4"}}) {
        carrier.SKROT = QString::fromUtf8(shortName);
        carrier.NAZWA = QString::fromUtf8(name);
        carrier.MIEJSCOWOSC = QString::fromUtf8(town);
        carrier.ADRES = QString::fromUtf8(street);
        EXPECT_TRUE(carrier.Insert());
    }
}

int CarrierInvoicesFixture::addInvoice(const Invoice &invoice)
{
    TZlecenia_przychObj order(db.connection());
    order.DATA = DateTime::fromDate(today());
    order.NUMER = invoice.orderNumber;
    order.IDPRZEWOZNIK = invoice.carrier;
    order.NUMER_FAKT_PRZEW = invoice.number;
    order.KWOTA_FAKT_PRZEW = invoice.amount;
    order.DATA_FAKT_WYSTAWIENIA = DateTime::fromDate(invoice.issued);
    order.DATA_FAKT_OTRZYMANIA = DateTime::fromDate(invoice.issued);
    order.DNI_FAKT = invoice.days;
    order.DATA_FAKT_PLATNOSCI = DateTime::fromDate(invoice.paymentDate);
    order.NRRAMPY = invoice.paid ? 1 : 0;
    order.ZAPLACONA_KWOTA = invoice.paidAmount;
    EXPECT_TRUE(order.Insert());
    return order.ID_ZLECENIA_PRZYCH;
}
