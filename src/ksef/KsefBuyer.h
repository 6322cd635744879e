#pragma once

#include <QString>

class TKontrahenciObj;

// How an e-invoice identifies its buyer. A Polish buyer by its NIP; a
// foreign one by its EU VAT number (EURONIP_1, else what its NIP field
// holds), by another tax number with its country, or, with none, as a
// buyer without an identifier.
struct KsefBuyer
{
    enum class Kind { Nip, EuVat, ForeignId, NoId };

    Kind kind = Kind::NoId;
    QString code;     // the EU code before an EU VAT number; the country of a foreign id
    QString number;   // NIP, EU VAT number without its code, or the foreign id

    // country is the client's country symbol from KRAJE.
    static KsefBuyer of(const TKontrahenciObj &client, const QString &country);
    // No country or Poland.
    static bool domestic(const QString &country);
    // The country code of an address: the symbol, "PL" when none is given.
    static QString countryCode(const QString &country);
};
