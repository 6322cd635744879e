#pragma once

#include "CompanyData.h"
#include "OrderGoods.h"
#include "TFakturyObj.h"
#include "TFaktury_pozycjeObj.h"
#include "TKonta_bankoweObj.h"
#include "TKontrahenciObj.h"
#include "TStawki_vatObj.h"
#include "TZlecenia_przychObj.h"

#include <QString>

#include <vector>

class Connection;

// Everything an invoice printout shows, read from the database in one go:
// the invoice with its positions and their rates, its document kind, bank
// account, payment type, client and issuing user, the company's own data,
// the orders it covers (and the goods of the order when there is one) and
// the amount due.
struct InvoiceData
{
    explicit InvoiceData(Connection &connection);

    TFakturyObj invoice;
    QString documentKind;   // DOKUMENTY.NAZWA
    TKonta_bankoweObj account;
    QString paymentType;    // RODZAJE_PLATNOSCI.OPIS
    TKontrahenciObj client;
    QString issuer;         // first name and surname of the issuing user
    CompanyData company;
    bool shortSaleDate = false;   // configuration DataSprzedazyKrotka
    std::vector<TFaktury_pozycjeObj> positions;
    std::vector<TStawki_vatObj> rates;
    std::vector<TZlecenia_przychObj> orders;
    std::vector<OrderGoodsItem> goods;   // of the one order, else empty
    double amountDue = 0.0;

    // The position's rate; a record with key 0 when it is not there.
    const TStawki_vatObj &rateOf(int rateKey) const;

    // Throws PrintoutError for an invoice that is not there, DbError when
    // the database fails.
    static InvoiceData load(Connection &connection, int invoiceKey);

private:
    TStawki_vatObj m_noRate;
};
