#pragma once

#include "DateTime.h"
#include "InvoiceHeaderChoices.h"

#include <QString>

class Connection;
class TFakturyObj;

// The header of an invoice of orders as the dispatcher confirms it: what
// the header dialog shows and what invoicing without a screen takes as it
// is proposed.
struct InvoiceHeader
{
    static constexpr int DefaultDocumentKind = 1;
    static constexpr int DefaultPaymentType = 2;   // "przelew" in the suite's dictionary
    static constexpr int DefaultPaymentDays = 30;
    static constexpr int MaxPaymentDays = 100;
    static constexpr int SymbolLength = 15;
    static constexpr int ReceiverLength = 30;
    static constexpr int ServiceNameLength = 250;
    static constexpr int RemarksLength = 250;
    static constexpr int PkwiuLength = 15;

    int documentKind = 0;   // 0: none chosen
    QString symbol;         // NUMER_ROZSZERZONY
    int client = 0;
    DateTime issued;
    DateTime sold;
    int paymentType = 0;
    int paymentDays = DefaultPaymentDays;
    int bankAccount = 0;
    QString receiver;
    QString serviceName;
    QString remarks;
    int revenueAccount = 0;   // position in RevenueAccounts::all()
    QString pkwiu;

    // What is proposed for the record the orders filled (client, symbol,
    // service name), issued today and sold as the caller says. ownFleet is
    // the session's flag as it stands before this invoicing.
    static InvoiceHeader proposed(const InvoiceHeaderChoices &choices, const TFakturyObj &record,
                                  bool ownFleet, DateTime today, QString pkwiu);

    // The message of the first choice missing, in the order the dialog
    // checks them; empty when all are made.
    QString problem() const;

    // Writes the header into the invoice record; the remarks stay here
    // until the invoice's position is written.
    void applyTo(TFakturyObj &record) const;

    // The classification code of the service is kept in the configuration
    // for the next invoice; DbError to the caller.
    static void storePkwiu(Connection &connection, const QString &code);
    // The code kept now.
    static QString storedPkwiu(Connection &connection);
};
