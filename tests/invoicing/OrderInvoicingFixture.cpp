#include "OrderInvoicingFixture.h"

#include "InvoiceDraft.h"
#include "InvoiceHeader.h"
#include "SessionContext.h"
#include "TableObjects.h"
#include "TestData.h"

void OrderInvoicingFixture::SetUp()
{
    Connection &c = db.connection();
    TStawki_vatObj rate(c);
    for (const auto &[label, fraction] : {std::pair{"23%", 0.23}, {"0%", 0.0}, {"zw.", 0.0}}) {
        rate.OPIS = QString::fromUtf8(label);
        rate.PROCENT = fraction;
        ASSERT_TRUE(rate.Insert());
    }
    TRodzaje_platnosciObj payment(c);
    for (const char *name : {"gotówka", "przelew"}) {
        payment.OPIS = QString::fromUtf8(name);
        ASSERT_TRUE(payment.Insert());
    }
    TDokumentyObj kind(c);
    for (const auto &[name, action] :
         {std::pair{"Faktura VAT", 1}, {"Faktura VAT korygująca", 1}, {"Nota obciążeniowa", 0}}) {
        kind.NAZWA = QString::fromUtf8(name);
        kind.RODZAJE_AKCJI = action;
        ASSERT_TRUE(kind.Insert());
    }
    TKonta_bankoweObj account(c);
    for (const auto &[bank, isDefault] : {std::pair{"Bank Handlowy", 0}, {"Bank Śląski", 1}}) {
        account.BANK = QString::fromUtf8(bank);
        account.RACHUNEK = QStringLiteral("12 1020 3352 0000 1102 0123 4567");
        account.DEFAULT_KONTO = isDefault;
        ASSERT_TRUE(account.Insert());
    }
    for (const char *name : {"ŻURAW", "ALFA", "ŁAD", "MOST"})
        TestData::addContractor(c, QString::fromUtf8(name));
    for (const char *name : {"Łódź", "Warszawa", "Kraków"})
        TestData::addCity(c, {QString::fromUtf8(name), {}, 0});
    TestData::addSetting(c, {QStringLiteral("MaskaNrFakturaVatZKraj"), 'S', 0,
                             QString::fromLatin1(Mask)});
    TestData::addSetting(c, {QStringLiteral("VatKrajZlecSped"), 'I', 1, {}});
    TestData::addSetting(c, {QStringLiteral("SwwkuExpZlecHaulix"), 'S', 0,
                             QStringLiteral("49.41.19")});
    TestData::addSetting(c, {QStringLiteral("IDWłaściciela"), 'I', OwnCompany, {}});
    session().OwnFleet = false;
}

int OrderInvoicingFixture::addOrder(const std::function<void(TZlecenia_przychObj &)> &change)
{
    TZlecenia_przychObj o(db.connection());
    o.NUMER = 100;
    o.DATA = DateTime::fromDate(QDate(2026, 3, 10));
    o.IDKONTRAHENTA = ClientA;
    o.IDPRZEWOZNIK = Carrier;
    o.IDMIASTO_OD = Lodz;
    o.IDMIASTO_DO = Krakow;
    o.STAWKA_RAZEM = 1000;
    if (change)
        change(o);
    EXPECT_TRUE(o.Insert());
    return o.ID_ZLECENIA_PRZYCH;
}

TZlecenia_przychObj OrderInvoicingFixture::order(int key)
{
    return TZlecenia_przychObj(db.connection()).SelectById(key);
}

OrderInvoicing::Request OrderInvoicingFixture::request(const std::vector<int> &orderKeys,
                                                       QDate issued, QDate sold)
{
    Connection &c = db.connection();
    const InvoiceDraft draft = InvoiceDraft::of(c, orderKeys, OwnCompany);
    TFakturyObj record(c);
    record.ID_KONTRAHENTA = order(orderKeys.front()).IDKONTRAHENTA;
    record.OPIS_POZYCJI = draft.serviceName;
    record.DATA_SPRZEDAZY = sold.isValid() ? DateTime::fromDate(sold) : draft.latestDelivery;
    const InvoiceHeader header
        = InvoiceHeader::proposed(InvoiceHeaderChoices::load(c), record, draft.ownFleet,
                                  DateTime::fromDate(issued), InvoiceHeader::storedPkwiu(c));
    header.applyTo(record);
    return {record, orderKeys, draft.netTotal, false, QStringLiteral("Płatne przelewem"),
            UserKey};
}

OrderInvoicing::Issued OrderInvoicingFixture::issue(const std::vector<int> &orderKeys,
                                                    QDate issued, QDate sold, bool bySaleDate)
{
    OrderInvoicing::Request r = request(orderKeys, issued, sold);
    r.bySaleDate = bySaleDate;
    return OrderInvoicing::issue(transaction, r);
}

void OrderInvoicingFixture::expectNothingInvoiced()
{
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY")), 0);
    EXPECT_EQ(db.count(QStringLiteral("FAKTURY_POZYCJE")), 0);
    EXPECT_EQ(db.count(QStringLiteral("ZLECENIA_PRZYCH"), QStringLiteral("IDFAKTURY > 0")), 0);
    EXPECT_EQ(db.count(QStringLiteral("NUMERACJA")), 0);
    EXPECT_FALSE(transaction.InTransaction());
}
