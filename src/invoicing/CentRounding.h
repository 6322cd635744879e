#pragma once

// The rounding invoices have always printed with: value × 100 + 0.5, cut to
// a whole number of grosze. Unlike Money::RoundTo2 it works on the binary
// value, and below zero it rounds towards zero (-10.125 gives -10.12).
// Printed invoices and what clients' accountants reconciled depend on it.
namespace CentRounding {

double halfUp(double amount);

} // namespace CentRounding
