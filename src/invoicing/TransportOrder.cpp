#include "TransportOrder.h"

#include "AmountInWords.h"
#include "CompanyData.h"
#include "Format.h"
#include "PrintoutError.h"
#include "TKierowcyObj.h"
#include "TKontrahenciObj.h"
#include "TMiejsca_zlecObj.h"
#include "TUsersObj.h"
#include "TVzlecenia_przychObj.h"
#include "TZlecenia_przychObj.h"

#include <QStringList>

namespace {

// The parts that hold more than blanks, joined.
QString joinFilled(const QStringList &parts, const QString &separator)
{
    QStringList kept;
    for (const QString &part : parts) {
        if (!part.trimmed().isEmpty())
            kept << part;
    }
    return kept.join(separator);
}

QString joinedLines(const QStringList &lines)
{
    return joinFilled(lines, QStringLiteral("\n"));
}

QString town(const QString &postcode, const QString &place)
{
    return QString(postcode + u' ' + place).trimmed();
}

// A date with its time, or the date alone when no time was given.
QString when(DateTime value)
{
    if (value.isNull())
        return QString();
    return value.time() == QTime(0, 0) ? Format::date(value) : Format::dateTime(value);
}

QString ordererOf(const CompanyData &company)
{
    const QString contacts = joinFilled({company.KONTAKT1, company.KONTAKT2, company.KONTAKT3},
                                        QStringLiteral(", "));
    return joinedLines({company.NAZWA, company.ADRES, town(company.KOD, company.MIEJSCOWOSC),
                        company.NIP.isEmpty() ? QString() : QStringLiteral("NIP: ") + company.NIP,
                        contacts});
}

QString carrierOf(const TKontrahenciObj &carrier)
{
    if (carrier.ID_KONTRAHENTA == 0)
        return QStringLiteral("(przewoźnik nie został wybrany)");
    return joinedLines({carrier.NAZWA, carrier.ADRES, town(carrier.KOD, carrier.MIEJSCOWOSC),
                        carrier.NIP.isEmpty() ? QString() : QStringLiteral("NIP: ") + carrier.NIP,
                        carrier.TELEFON.isEmpty() ? QString()
                                                  : QStringLiteral("tel. ") + carrier.TELEFON});
}

// Every filled address of the order's place of the type; the route's city
// when the order has no address of that kind.
QString addressesOf(Connection &connection, int orderKey, int type, const QString &city)
{
    const std::vector<TMiejsca_zlecObj> places = TMiejsca_zlecObj(connection).SelectClause(
        QStringLiteral("where ID_ZLECENIA=%1 AND ID_ZRP=%2").arg(orderKey).arg(type));
    QStringList addresses;
    if (!places.empty()) {
        for (int number = 1; number <= TMiejsca_zlecObj::SlotCount; ++number) {
            const TMiejsca_zlecObj::Slot slot = places.front().slot(number);
            const QString street
                = joinFilled({slot.ADRES, town(slot.KOD, slot.MIEJSCOWOSC)}, QStringLiteral(", "));
            const QString address = joinedLines({slot.NAZWA, street});
            if (!address.isEmpty())
                addresses << address;
        }
    }
    if (addresses.isEmpty())
        return city;
    if (addresses.size() > 1) {
        for (qsizetype i = 0; i < addresses.size(); ++i)
            addresses[i] = QStringLiteral("%1. ").arg(i + 1) + addresses[i];
    }
    return addresses.join(u'\n');
}

QString paymentTermOf(int days)
{
    if (days <= 0)
        return QStringLiteral("do uzgodnienia");
    return QStringLiteral("%1 dni od daty otrzymania faktury wraz z potwierdzonym dokumentem "
                          "przewozowym")
        .arg(days);
}

} // namespace

const QStringList &TransportOrder::conditions()
{
    static const QStringList texts{
        QStringLiteral("1. Przewoźnik oświadcza, że posiada ważne ubezpieczenie OC przewoźnika "
                       "drogowego obejmujące przewożony towar."),
        QStringLiteral("2. Przewoźnik nie może powierzyć przewozu innemu przewoźnikowi bez "
                       "pisemnej zgody zleceniodawcy."),
        QStringLiteral("3. Do faktury należy dołączyć dokument przewozowy (CMR lub list "
                       "przewozowy) z potwierdzeniem odbioru towaru."),
        QStringLiteral("4. Brak odmowy w ciągu 1 godziny od otrzymania zlecenia oznacza jego "
                       "przyjęcie do realizacji."),
        QStringLiteral("5. W sprawach nieuregulowanych stosuje się ustawę Prawo przewozowe, a w "
                       "przewozie międzynarodowym konwencję CMR."),
    };
    return texts;
}

TransportOrder TransportOrder::load(Connection &connection, int orderKey)
{
    const TZlecenia_przychObj o = TZlecenia_przychObj(connection).SelectById(orderKey);
    if (o.ID_ZLECENIA_PRZYCH == 0)
        throw PrintoutError(QStringLiteral("Nie ma zlecenia o identyfikatorze %1.").arg(orderKey));
    const TVzlecenia_przychObj names = TVzlecenia_przychObj(connection).SelectById(orderKey);
    const TKontrahenciObj carrier = TKontrahenciObj(connection).SelectById(o.IDPRZEWOZNIK);

    TransportOrder t;
    t.title = QStringLiteral("Zlecenie transportowe nr ")
        + QStringLiteral("%1").arg(o.NUMER, 8, 10, QLatin1Char('0'));
    if (!o.DATA.isNull())
        t.dated = QStringLiteral("z dnia ") + Format::date(o.DATA);
    t.orderer = ordererOf(CompanyData::load(connection));
    t.carrier = carrierOf(carrier);

    const QString loadingTime = when(o.AWIZO.isNull() ? o.DATA : o.AWIZO);
    t.loading = joinedLines(
        {addressesOf(connection, orderKey, 1, names.MIASTOOD),
         loadingTime.isEmpty() ? QString() : QStringLiteral("Termin załadunku: ") + loadingTime});
    const QString delivery = when(o.DOSTARCZENIE);
    const QString unloaded = when(o.DATA_ROZLADUNKU);
    t.unloading = joinedLines(
        {addressesOf(connection, orderKey, 2, names.MIASTODO),
         delivery.isEmpty() ? QString() : QStringLiteral("Termin dostarczenia: ") + delivery,
         unloaded.isEmpty() || unloaded == delivery
             ? QString()
             : QStringLiteral("Data rozładunku: ") + unloaded});

    t.route = joinFilled({names.MIASTOOD, names.MIASTOVIA, names.MIASTODO}, QStringLiteral(" - "));
    if (o.ODLEGLOSC > 0)
        t.distance = QStringLiteral("%1 km").arg(o.ODLEGLOSC);
    t.vehicle = o.POJAZD;
    t.trailer = o.NACZEPA;
    t.driver = o.KIEROWCA;
    t.phone = o.TELEFON;
    if (t.phone.isEmpty() && o.IDKIEROWCY != 0)
        t.phone = TKierowcyObj(connection).SelectById(o.IDKIEROWCY).TEL_KOM;

    t.goods = OrderGoods::of(connection, orderKey);
    if (o.PALETYILOSC > 0)
        t.pallets = QString::number(o.PALETYILOSC);
    if (o.KM_PUSTE > 0)
        t.weight = Format::number(o.KM_PUSTE, u"#,##0.000") + QStringLiteral(" t");

    t.freight = Format::number(o.KOSZTRAZEM, u"#,##0.00") + QStringLiteral(" PLN netto + VAT");
    t.freightInWords = AmountInWords::words(o.KOSZTRAZEM);
    t.paymentTerm = paymentTermOf(o.DNI_FAKT > 0 ? o.DNI_FAKT : carrier.PLATNOSC_DNI);
    t.clientOrderNumber = o.NUMER_OBCY;
    t.remarks = o.DODATKOWY_OPIS;
    const TUsersObj user = TUsersObj(connection).SelectById(o.IDUSER);
    t.issuedBy = QString(user.IMIE + u' ' + user.NAZWISKO).trimmed();
    return t;
}
