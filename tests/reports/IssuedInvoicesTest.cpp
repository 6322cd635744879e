// The records of the statement of issued invoices, without a widget.
#include "IssuedInvoices.h"
#include "ReportsFixture.h"
#include "Statement.h"

namespace {

const QDate March1(2026, 3, 1);
const QDate March31(2026, 3, 31);

} // namespace

class IssuedInvoicesTest : public ReportsFixture
{
protected:
    std::vector<TPozycjaZestawienia> build(bool own, QStringList *labels = nullptr)
    {
        IssuedInvoices invoices(db.connection(), March1, March31, own);
        invoices.read();
        return invoices.build([labels](const QString &label) {
            if (labels)
                *labels << label;
        });
    }
};

TEST_F(IssuedInvoicesTest, TheSelectionIsTheRegistersStatementWithTheOwnersKey)
{
    Statement st(db.connection());
    IssuedInvoices(db.connection(), March1, March31, true).prepare(st, 7);
    EXPECT_EQ(st.lines(), QStringList({
        "select * from faktury where id_rodzaj_dok=1 and (DATA_WYSTAWIENIA>=:aOd AND "
        "DATA_WYSTAWIENIA<=:aDo) ",
        " AND id_faktury in (select idfaktury from zlecenia_przych ",
        " where idprzewoznik=:aIdPrzewoznik ",
        " ) "}));
    IssuedInvoices(db.connection(), March1, March31, false).prepare(st, 7);
    EXPECT_EQ(st.lines().at(2), " where idprzewoznik<>:aIdPrzewoznik ");

    EXPECT_EQ(IssuedInvoices(db.connection(), March1, March31, true).title(),
              "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA WŁASNY) OD 2026-03-01  DO  2026-03-31");
    EXPECT_EQ(IssuedInvoices(db.connection(), March1, March31, false).title(),
              "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD 2026-03-01  DO  2026-03-31");
}

TEST_F(IssuedInvoicesTest, LinesAreRoundedOneByOneAndTheStampFeeIsItsOwnSum)
{
    const int invoice = addInvoice({.lines = {{.quantity = 2, .price = 50.0},
                                              {.quantity = 2, .price = 50.0, .kind = 10},
                                              {.quantity = 3, .price = 0.333},
                                              {.quantity = 1, .price = 0.10},
                                              {.quantity = 1, .price = 0.10},
                                              {.quantity = 1, .price = 40.0, .vat = vat0}}});
    addOrder({.invoice = invoice});
    const std::vector<TPozycjaZestawienia> records = build(true);
    ASSERT_EQ(records.size(), 1u);
    const TPozycjaZestawienia &r = records[0];
    // 100 + 100 + 1.00 (0.999 rounded) + 0.10 + 0.10 + 40
    EXPECT_DOUBLE_EQ(r.Netto, 241.2);
    EXPECT_DOUBLE_EQ(r.OplataSkarbowa, 100.0);
    // 23 + 23 + 0.23 + 0.02 + 0.02 (each 0.023 rounded on its own) + 0
    EXPECT_DOUBLE_EQ(r.Vat, 46.27);
    EXPECT_DOUBLE_EQ(r.Brutto, 123.0 + 123.0 + 1.23 + 0.12 + 0.12 + 40.0);
}

TEST_F(IssuedInvoicesTest, ARecordCarriesTheInvoiceItsClientVehicleAndDueDate)
{
    const QString longNumber = QStringLiteral("FV/2026/03/000000000000000000000000000000000001");
    const int invoice = addInvoice({.sequence = 4, .number = longNumber, .client = client2,
                                    .issued = QDate(2026, 3, 20), .sold = QDate(2026, 2, 27),
                                    .days = 21, .lines = {{.price = 10.0}}});
    addOrder({.invoice = invoice, .number = 1});
    addOrder({.invoice = invoice, .number = 2, .vehicle = QStringLiteral("GD 1234A")});
    addOrder({.invoice = invoice, .number = 3, .vehicle = QStringLiteral("GD 9999Z")});
    QStringList labels;
    const std::vector<TPozycjaZestawienia> records = build(true, &labels);
    ASSERT_EQ(records.size(), 1u);
    const TPozycjaZestawienia &r = records[0];
    EXPECT_EQ(r.IdFaktury, invoice);
    EXPECT_EQ(r.NrKolejny, 4);
    EXPECT_EQ(r.NumerPelny, longNumber.left(40));
    EXPECT_EQ(r.IdKontrahenta, client2);
    EXPECT_EQ(r.Kontrahent, "KLIENT B Sp. z o.o.");
    EXPECT_EQ(r.Pojazd, "GD 1234A");
    EXPECT_EQ(r.DataSprzedazy.date(), QDate(2026, 2, 27));
    EXPECT_EQ(r.DataWystawienia.date(), QDate(2026, 3, 20));
    EXPECT_EQ(r.DataPlatnosci.date(), QDate(2026, 4, 10));
    EXPECT_EQ(labels, QStringList({QStringLiteral("\tRachunk: ") + longNumber.left(40)}));
}

TEST_F(IssuedInvoicesTest, OwnOrOtherCarriersDomesticInvoicesOfThePeriodOnly)
{
    const auto invoiceWith = [this](int sequence, QDate issued, int carrier, int kind = 1) {
        const int invoice = addInvoice(
            {.sequence = sequence, .issued = issued, .kind = kind, .lines = {{.price = 1.0}}});
        addOrder({.invoice = invoice, .carrier = carrier});
        return invoice;
    };
    invoiceWith(1, March1, 0);
    invoiceWith(2, March31, 0);
    invoiceWith(3, QDate(2026, 4, 1), 0);      // after the period
    invoiceWith(4, QDate(2026, 2, 28), 0);     // before it
    invoiceWith(5, QDate(2026, 3, 15), 0, 2);  // not a domestic invoice
    invoiceWith(6, QDate(2026, 3, 15), carrier);
    addInvoice({.sequence = 7, .lines = {{.price = 1.0}}});   // no order at all

    const auto sequences = [](const std::vector<TPozycjaZestawienia> &records) {
        QList<int> numbers;
        for (const TPozycjaZestawienia &r : records)
            numbers << r.NrKolejny;
        return numbers;
    };
    EXPECT_EQ(sequences(build(true)), QList<int>({1, 2}));
    EXPECT_EQ(sequences(build(false)), QList<int>({6}));
}

TEST_F(IssuedInvoicesTest, RecordsFollowTheSequenceNumberWhateverTheQueryOrderAndLinesMayLack)
{
    for (const int sequence : {3, 1, 2}) {
        const int invoice = addInvoice({.sequence = sequence});   // no lines
        addOrder({.invoice = invoice});
    }
    const std::vector<TPozycjaZestawienia> records = build(true);
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].NrKolejny, 1);
    EXPECT_EQ(records[1].NrKolejny, 2);
    EXPECT_EQ(records[2].NrKolejny, 3);
    for (const TPozycjaZestawienia &r : records) {
        EXPECT_EQ(r.Netto + r.Brutto + r.Vat + r.OplataSkarbowa, 0.0);
        EXPECT_TRUE(r.Pojazd.isEmpty());
    }
}
