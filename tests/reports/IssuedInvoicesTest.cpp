// The records of the statement of issued invoices, without a widget.
#include "IssuedInvoices.h"
#include "ReportsFixture.h"

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

TEST_F(IssuedInvoicesTest, ARecordCarriesTheInvoiceItsClientAndItsFirstVehicle)
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
    // Its other cells are read from the statement's page.
    EXPECT_EQ(r.NumerPelny, longNumber.left(40));
    EXPECT_EQ(r.IdKontrahenta, client2);
    EXPECT_EQ(r.Pojazd, "GD 1234A");
    EXPECT_EQ(labels, QStringList({QStringLiteral("\tRachunk: ") + longNumber.left(40)}));
}

TEST_F(IssuedInvoicesTest, OwnOrOtherCarriersDomesticInvoicesOfThePeriodBySequenceOnly)
{
    const auto invoiceWith = [this](int sequence, QDate issued, int carrier, int kind = 1,
                                    std::vector<Line> lines = {{.price = 1.0}}) {
        const int invoice = addInvoice(
            {.sequence = sequence, .issued = issued, .kind = kind, .lines = lines});
        addOrder({.invoice = invoice, .carrier = carrier});
    };
    // Stored out of their order; the last has no lines at all.
    invoiceWith(2, March31, 0);
    invoiceWith(1, March1, 0);
    invoiceWith(3, QDate(2026, 4, 1), 0);      // after the period
    invoiceWith(4, QDate(2026, 2, 28), 0);     // before it
    invoiceWith(5, QDate(2026, 3, 15), 0, 2);  // not a domestic invoice
    invoiceWith(6, QDate(2026, 3, 15), carrier);
    addInvoice({.sequence = 7, .lines = {{.price = 1.0}}});   // no order at all
    invoiceWith(8, QDate(2026, 3, 15), 0, 1, {});

    const auto sequences = [](const std::vector<TPozycjaZestawienia> &records) {
        QList<int> numbers;
        for (const TPozycjaZestawienia &r : records)
            numbers << r.NrKolejny;
        return numbers;
    };
    const std::vector<TPozycjaZestawienia> own = build(true);
    EXPECT_EQ(sequences(own), QList<int>({1, 2, 8}));
    EXPECT_EQ(sequences(build(false)), QList<int>({6}));
    ASSERT_EQ(own.size(), 3u);
    const TPozycjaZestawienia &empty = own[2];
    EXPECT_EQ(empty.Netto + empty.Brutto + empty.Vat + empty.OplataSkarbowa, 0.0);
    EXPECT_TRUE(empty.Pojazd.isEmpty());

    EXPECT_EQ(IssuedInvoices(db.connection(), March1, March31, true).title(),
              "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA WŁASNY) OD 2026-03-01  DO  2026-03-31");
    EXPECT_EQ(IssuedInvoices(db.connection(), March1, March31, false).title(),
              "ZESTAWIENIE FAKTUR KRAJOWYCH  (WYKONAWCA OBCY) OD 2026-03-01  DO  2026-03-31");
}
