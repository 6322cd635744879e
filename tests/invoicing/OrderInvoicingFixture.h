#pragma once

#include "OrderInvoicing.h"
#include "SessionFixture.h"
#include "TZlecenia_przychObj.h"

#include <QDate>

#include <functional>
#include <vector>

// A company ready to invoice its orders: document kinds (1 "Faktura VAT"
// and 2 "Faktura VAT korygująca" invoice orders, 3 does not), VAT rates,
// payment types (2 "przelew"), two bank accounts (the second the default),
// the invoicing settings, two clients, the company itself as a carrier and
// an outside carrier, cities. The session is user 5 on the test's database.
class OrderInvoicingFixture : public SessionFixture
{
protected:
    static constexpr int UserKey = 5;
    static constexpr int DefaultAccount = 2;
    static constexpr const char *Mask = "%###;/;%M;/;%R";
    enum Contractor { ClientA = 1, ClientB, OwnCompany, Carrier };
    enum City { Lodz = 1, Warszawa, Krakow };

    OrderInvoicingFixture() : SessionFixture(UserKey) {}
    void SetUp() override;

    // An order of client A loaded 2026-03-10 from Łódź to Kraków by the
    // outside carrier, agreed at 1000; returns its key.
    int addOrder(const std::function<void(TZlecenia_przychObj &)> &change = {});
    TZlecenia_przychObj order(int key);

    // The request the dialog's proposal makes for the orders, issued and
    // sold as given, by document kind 1.
    OrderInvoicing::Request request(const std::vector<int> &orderKeys, QDate issued,
                                    QDate sold = {});
    // Issues it; the invoice's key.
    OrderInvoicing::Issued issue(const std::vector<int> &orderKeys, QDate issued,
                                 QDate sold = {}, bool bySaleDate = false);

    int invoiceOf(int orderKey) { return order(orderKey).IDFAKTURY; }
    // Nothing of any invoice is stored: no invoice, position, linked
    // order or numbering row.
    void expectNothingInvoiced();
};
