#pragma once

#include "PopplerText.h"
#include "ReportPage.h"
#include "TFakturyObj.h"
#include "TZlecenia_przychObj.h"
#include "TestDatabase.h"

#include <gtest/gtest.h>

#include <functional>

// A company ready to invoice: its own data, the VAT rates (keys 1 to 5 as
// the suite delivers them, 6 an extra 8 % rate), payment types, a document
// kind, a bank account, a user, a client, a carrier, cities and units.
class InvoicingFixture : public testing::Test
{
public:
    // The non-empty texts of the pages in the order they were placed, dotted
    // signature lines left out.
    static QStringList printed(const std::vector<ReportPage> &pages);
    // Whether the texts hold these, in this order (others may stand between);
    // a failure shows both.
    static testing::AssertionResult inOrder(const QStringList &texts,
                                            const QStringList &expected);

protected:
    static constexpr int ClientKey = 1;
    static constexpr int CarrierKey = 2;
    static constexpr int TonneUnit = 1;
    // Cities in the order they are inserted.
    enum City { Lodz = 1, Warszawa, Krakow, Gdansk };

    void SetUp() override;

    // An invoice of the client issued 2026-07-10, sold 2026-07-08, 14 days
    // to pay, issued by the user; returns its key.
    int addInvoice(const std::function<void(TFakturyObj &)> &change = {});
    void addPosition(int invoiceKey, const QString &text, double quantity, double price,
                     int rateKey);
    // An order of the client from Łódź to Warszawa; returns its key.
    int addOrder(const std::function<void(TZlecenia_przychObj &)> &change = {});
    void addGoods(int orderKey, const QString &name, double quantity, int unit = TonneUnit);

    TestDatabase db;
};
