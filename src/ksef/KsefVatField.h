#pragma once

#include <QString>

#include <array>
#include <optional>

// Where a position's VAT rate goes in the e-invoice: the rate code of its
// line and the pair of total fields of its group. The four groups of the
// printout's summary keep their place (23 % as P_13_1/P_14_1, 0 % as the
// domestic zero rate P_13_6_1, "zw." as P_13_7, "NP" as the services
// outside the country P_13_8); any other rate goes by its percentage to the
// reduced rates' fields.
struct KsefVatField
{
    // The total fields in the schema's order.
    enum Field { Standard, Reduced, SuperReduced, ZeroDomestic, Exempt, NotSubject, Count };

    Field field = Standard;
    QString rateCode;   // P_12: "23", "0 KR", "zw", "np I", ...

    // rateKey is the position's STAWKI_VAT key, fraction its rate (0.23).
    // None for a rate the schema has no field for.
    static std::optional<KsefVatField> of(int rateKey, double fraction);

    // "P_13_1"; the VAT field "P_14_1", empty where the schema has none.
    static QString netElement(Field field);
    static QString vatElement(Field field);
};
