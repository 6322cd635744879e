#pragma once

class Connection;

// The gross amount an invoice asks for, computed from its positions in the
// database rather than from the printed lines: each position's net rounded
// to the grosz, its VAT from that net rounded again, both added up.
namespace AmountDue {

// Throws DbError.
double of(Connection &connection, int invoiceKey);

} // namespace AmountDue
