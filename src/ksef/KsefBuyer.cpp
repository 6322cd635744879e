#include "KsefBuyer.h"

#include "TKontrahenciObj.h"
#include "TaxNumber.h"

bool KsefBuyer::domestic(const QString &country)
{
    const QString code = countryCode(country);
    return code == QLatin1String("PL");
}

QString KsefBuyer::countryCode(const QString &country)
{
    const QString code = country.trimmed().toUpper();
    return code.isEmpty() ? QStringLiteral("PL") : code;
}

KsefBuyer KsefBuyer::of(const TKontrahenciObj &client, const QString &country)
{
    KsefBuyer buyer;
    if (domestic(country)) {
        buyer.kind = Kind::Nip;
        buyer.number = TaxNumber::nip(client.NIP);
        return buyer;
    }
    QString id = TaxNumber::compact(client.EURONIP_1);
    if (id.isEmpty())
        id = TaxNumber::compact(client.NIP);
    if (id.isEmpty())
        return buyer;
    const QString code = countryCode(country);
    if (const QString prefix = TaxNumber::euPrefix(id); !prefix.isEmpty()) {
        buyer.kind = Kind::EuVat;
        buyer.code = prefix;
        buyer.number = id.mid(2);
        return buyer;
    }
    // A number without its code, of a buyer in the EU: the country's code
    // goes before it (Greece is EL there, GR in the country list).
    const QString euCode = code == QLatin1String("GR") ? QStringLiteral("EL") : code;
    if (!TaxNumber::euPrefix(euCode + id).isEmpty()) {
        buyer.kind = Kind::EuVat;
        buyer.code = euCode;
        buyer.number = id;
        return buyer;
    }
    buyer.kind = Kind::ForeignId;
    buyer.code = code;
    buyer.number = id;
    return buyer;
}
