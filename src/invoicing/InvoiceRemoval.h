#pragma once

class Transaction;

// Removing an invoice of orders: its positions, the links of every order
// on it (not only the one the dispatcher looks at) and the invoice itself,
// all or nothing.
namespace InvoiceRemoval {

// Only the invoice administrator, user 1, removes invoices; anyone else
// is told so and false is returned.
bool allowed(int userId);

// Throws InvoicingError (shown already by the invoice's table object) or
// DbError; the invoice then stays as it was.
void remove(Transaction &transaction, int invoiceKey);

} // namespace InvoiceRemoval
