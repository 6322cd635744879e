#pragma once

#include <QString>

// Bank account numbers: the Polish NRB (26 digits) or an IBAN (two letters
// of the country, then the check digits and the account). Both carry check
// digits computed modulo 97. People write them with blanks.
namespace BankAccount {

bool isValid(const QString &text);

// What to tell the user about a number that is not valid; empty when it is.
QString problem(const QString &text);

} // namespace BankAccount
