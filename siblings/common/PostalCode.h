#pragma once

#include <QString>

// Postal codes checked against a country's mask (KRAJE.KOD_POCZTOWY_MASKA):
// '9' stands for a digit, 'A' for a letter, any other character for itself.
// Poland's codes have the form NN-NNN.
namespace PostalCode {

inline const QString PolishMask = QStringLiteral("99-999");

// An empty mask accepts every code.
bool matches(const QString &code, const QString &mask);

// The mask as people read it: "NN-NNN", "NNNN LL".
QString readable(const QString &mask);

// What to tell the user about a code that does not fit the mask; empty
// when it does. country is the country's name, for the message.
QString problem(const QString &code, const QString &mask, const QString &country);

} // namespace PostalCode
