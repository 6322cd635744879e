#pragma once

#include <QString>

// Tax numbers as the contractor register and the company data hold them
// ("725-100-20-46", "PL 725 100 20 46") and as the e-invoice wants them.
namespace TaxNumber {

// The number without blanks, dashes and dots, in capitals.
QString compact(const QString &number);

// A Polish NIP as its ten digits, a leading "PL" dropped. Whatever is not
// a NIP comes back compacted, for the schema to name it.
QString nip(const QString &number);

// The two letters an EU VAT number starts with ("DE" of "DE123456789"),
// when they are an EU member's code as the schema lists them; else empty.
QString euPrefix(const QString &compactNumber);

} // namespace TaxNumber
