#pragma once

#include <QStringList>

class QTextStream;

// haulix-admin invoice DB --client ID --from YYYY-MM-DD --to YYYY-MM-DD
//                        [--by-sale-date] [--issue-date YYYY-MM-DD] [--user ID]
//
// Invoices every order of the client loaded in the period that has no
// invoice yet onto one invoice, as the dispatcher's invoicing does, and
// prints the invoice's full number and key on one line. Exit status 0;
// 1 with a Polish line when there is nothing to invoice; 2 when the
// arguments are wrong or the invoicing failed, nothing of it written.
namespace InvoiceCommand {

// arguments: everything after "invoice".
int run(const QStringList &arguments, QTextStream &out, QTextStream &err);

QString usage();

} // namespace InvoiceCommand
