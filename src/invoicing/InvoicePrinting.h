#pragma once

class Connection;

// Printing an invoice of orders, from the register and after invoicing:
// the invoice and then its attachment.
namespace InvoicePrinting {

// Nothing happens for an order without an invoice. When the order has a
// rate per laden kilometre and the invoice covers at most this order, the
// user chooses the kilometre wording first; then whether to preview (Yes),
// print straight away (No) or stop (Cancel). Throws DbError.
void printInvoiceOfOrder(Connection &connection, int orderKey);

// The invoice and then its attachment, both previewed or both sent to the
// printer. An invoice that cannot be laid out has said why, and its
// attachment is not tried. Throws DbError.
void showInvoice(Connection &connection, int invoiceKey, bool preview,
                 bool perKilometre = false);

} // namespace InvoicePrinting
