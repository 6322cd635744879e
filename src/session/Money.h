#pragma once

#include <QString>

// Money helpers shared by the order editor, invoicing and the reports.
// Amounts are plain doubles; these functions decide on the decimal digits a
// user sees, not on the binary value behind them.
namespace Money {

// Half up on the third decimal digit: the digit decides, so 2.345 gives 2.35
// and 2.344 gives 2.34. The correction always adds one cent, also below
// zero (-1.005 gives -0.99); invoices printed so far depend on that.
double RoundTo2(double amount);

// The amount's exchange into cents with ties going to the even cent, as a
// conversion by an exchange rate rounds.
double RoundCentsToEven(double amount);

} // namespace Money
