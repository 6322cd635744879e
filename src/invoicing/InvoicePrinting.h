#pragma once

class Connection;

// Printing an order's invoice from the register: the invoice and then its
// attachment, both previewed or both sent to the printer.
namespace InvoicePrinting {

// Nothing happens for an order without an invoice. When the order has a
// rate per laden kilometre and the invoice covers at most this order, the
// user chooses the kilometre wording first; then whether to preview (Yes),
// print straight away (No) or stop (Cancel). Throws DbError.
void printInvoiceOfOrder(Connection &connection, int orderKey);

} // namespace InvoicePrinting
