#include "DemoCatalog.h"
#include "DemoPlan.h"
#include "DemoSeeder.h"
#include "Statement.h"
#include "TableObjects.h"

#include <algorithm>
#include <cmath>
#include <map>

using namespace DemoCatalog;

namespace {

// The stamp fee some invoices charge, and the VAT rate it goes under
// ("zw.", the third rate the seeder writes).
constexpr double StampFee = 17.0;
constexpr int ExemptVat = 3;

double cents(double amount)
{
    return std::floor(amount * 100.0 + 0.5) / 100.0;
}

DateTime at(QDate day, int hour)
{
    return DateTime(DateTime::fromDate(day).days() + hour / 24.0);
}

// The carriers' invoices take, in turn, every state their lists show: not
// yet due, overdue with half of it paid, paid in time and paid late. An
// invoice too recent to be past due is not yet due. NRRAMPY is the paid mark.
void settleCarrierInvoice(TZlecenia_przychObj &o, QDate issued, QDate today, int turn)
{
    enum State { NotDue, Overdue, PaidInTime, PaidLate };
    const qint64 sinceIssue = issued.daysTo(today);
    int term = 0;
    for (const int days : {21, 14, 7}) {
        if (days <= sinceIssue - 2) {
            term = days;
            break;
        }
    }
    const State state = term == 0 ? NotDue : State(turn % 4);
    o.DNI_FAKT = state == NotDue ? 30 : term;
    const QDate due = issued.addDays(o.DNI_FAKT);
    QDate paid = due;
    o.NRRAMPY = 0;
    o.ZAPLACONA_KWOTA = 0.0;
    switch (state) {
    case NotDue:
        break;
    case Overdue:
        o.ZAPLACONA_KWOTA = std::round(o.KWOTA_FAKT_PRZEW / 2.0);
        break;
    case PaidInTime:
        paid = due.addDays(-1 - turn % 3);
        break;
    case PaidLate:
        paid = std::min(due.addDays(1 + turn % 5), today);
        break;
    }
    if (state == PaidInTime || state == PaidLate) {
        o.NRRAMPY = 1;
        o.ZAPLACONA_KWOTA = o.KWOTA_FAKT_PRZEW;
    }
    o.DATA_FAKT_PLATNOSCI = DateTime::fromDate(paid);
}

} // namespace

bool DemoSeeder::spreadOverYears() const
{
    return m_options.orders > OrdersPerWorkingDay * workingDaysAround(m_options.today);
}

int DemoSeeder::firstOrderOffset() const
{
    if (!spreadOverYears())
        return -AroundToday;
    // Back from a month after today over as many working days as the
    // orders need.
    const int needed = (m_options.orders + OrdersPerWorkingDay - 1) / OrdersPerWorkingDay;
    int offset = AroundToday;
    for (int found = 0;; --offset) {
        if (isWorkingDay(m_options.today.addDays(offset)) && ++found == needed)
            return offset;
    }
}

std::vector<int> DemoSeeder::orderDayOffsets()
{
    std::vector<int> offsets;
    offsets.reserve(std::size_t(m_options.orders));
    if (!spreadOverYears()) {
        for (int i = 0; i < m_options.orders; ++i)
            offsets.push_back(int(m_random.bounded(2 * AroundToday + 1)) - AroundToday);
    } else {
        std::vector<int> workingDays;
        for (int offset = firstOrderOffset(); offset <= AroundToday; ++offset) {
            if (isWorkingDay(m_options.today.addDays(offset)))
                workingDays.push_back(offset);
        }
        for (int i = 0; i < m_options.orders; ++i)
            offsets.push_back(workingDays[m_random.bounded(int(workingDays.size()))]);
    }
    std::sort(offsets.begin(), offsets.end());
    return offsets;
}

int DemoSeeder::firstRoadCardOffset() const
{
    return spreadOverYears() ? firstOrderOffset() : RoadCardDays - AroundToday;
}

std::size_t DemoSeeder::roadCardNear(int offset) const
{
    const int card = (offset - firstRoadCardOffset()) / RoadCardDays;
    return std::size_t(std::clamp(card, 0, int(m_cardKeys.size()) - 1));
}

const TTaryfyprzewoznikaObj &DemoSeeder::tariffWithKey(int key)
{
    if (m_tariffs.empty())
        m_tariffs = TTaryfyprzewoznikaObj(m_connection).SelectAll();
    for (const TTaryfyprzewoznikaObj &tariff : m_tariffs) {
        if (tariff.ID_TARYFYPRZEWOZNIKA == key)
            return tariff;
    }
    throw DbError(QStringLiteral("Brak taryfy %1").arg(key));
}

std::vector<DemoSeeder::PlannedOrder> DemoSeeder::planOrders()
{
    const std::vector<int> offsets = orderDayOffsets();

    std::vector<PlannedOrder> plan;
    plan.reserve(offsets.size());
    std::map<int, int> numberInYear;
    int carrierInvoices = 0;
    constexpr int domesticCities = 20;
    for (const int offset : offsets) {
        PlannedOrder p(m_connection);
        TZlecenia_przychObj &o = p.order;
        const QDate day = m_options.today.addDays(offset);
        p.client = int(m_random.bounded(int(Clients.size())));
        p.fromCity = Clients[std::size_t(p.client)].city;
        const bool abroad = m_random.bounded(10) == 0;
        do {
            p.toCity = abroad ? domesticCities + int(m_random.bounded(int(Cities.size()) - domesticCities))
                              : int(m_random.bounded(domesticCities));
        } while (p.toCity == p.fromCity);
        if (abroad)
            p.fromCity = int(m_random.bounded(6));   // foreign routes start in the big cities

        o.DATA = DateTime::fromDate(day);
        o.NUMER = ++numberInYear[day.year()];
        o.IDKONTRAHENTA = m_clientKeys[std::size_t(p.client)];
        o.IDFAKTUROBIORCY = o.IDKONTRAHENTA;
        o.IDMIASTO_OD = m_cityKeys[std::size_t(p.fromCity)];
        o.IDMIASTO_DO = m_cityKeys[std::size_t(p.toCity)];
        o.IDMIASTAZALADUNKU = o.IDMIASTO_OD;
        o.ODLEGLOSC = distance(p.fromCity, p.toCity);
        o.KM_LADOWNE = o.ODLEGLOSC;
        o.TYP = abroad ? QStringLiteral("Międzynarodowe") : QStringLiteral("Krajowe");
        o.AWIZO = at(day, 6 + int(m_random.bounded(9)));
        o.DOSTARCZENIE = at(day.addDays(1 + o.ODLEGLOSC / 700), 8 + int(m_random.bounded(8)));
        o.DATA_ROZLADUNKU = o.DOSTARCZENIE;
        o.PALETYILOSC = int(m_random.bounded(34));
        o.KM_PUSTE = std::round(m_random.bounded(230) * 100.0 + 1000.0) / 1000.0;   // tonnes
        o.IDUSER = 1 + int(m_random.bounded(3));
        o.FILTR1 = 1 + int(m_random.bounded(2));
        o.FILTR2 = m_random.bounded(8) == 0 ? 1 : 0;
        if (m_random.bounded(2) == 0)
            o.NUMER_OBCY = QStringLiteral("ZAM/%1/%2").arg(day.year()).arg(1000 + m_random.bounded(9000));
        if (m_random.bounded(3) == 0)
            o.NR_LISTU = 100000 + int(m_random.bounded(900000));
        if (m_random.bounded(4) == 0)
            o.DOK_WZ = 1 + int(m_random.bounded(99999));

        if (m_random.bounded(5) < 3) {
            // An agreed amount, whole złoty as dispatchers agree it.
            o.KWOTA = std::round(o.ODLEGLOSC * 3.4 + 150.0 + o.KM_PUSTE * 4.0);
            o.STAWKA_RAZEM = o.KWOTA;
        } else {
            const TTaryfyprzewoznikaObj &tariff = tariffWithKey(m_ownTariffKeys[m_random.bounded(2)]);
            o.IDTARYFY = tariff.ID_TARYFYPRZEWOZNIKA;
            o.STAWKA_KMLAD = tariff.KWOTA_ZA_KM_LAD;
            o.STAWKA_KMPUSTY = tariff.KWOTA_ZA_KM;
            o.STAWKA_GODZINY = tariff.KWOTA_ZA_GODZ;
            o.STAWKA_PALETY = tariff.KWOTA_ZA_PALETE;
            o.ILOSC_GODZIN = double(m_random.bounded(5));
            o.STAWKA_RAZEM = cents(o.KM_LADOWNE * o.STAWKA_KMLAD) + cents(o.KM_PUSTE * o.STAWKA_KMPUSTY)
                + cents(o.ILOSC_GODZIN * o.STAWKA_GODZINY) + cents(o.PALETYILOSC * o.STAWKA_PALETY);
        }
        o.KWOTA_PO_RABACIE = o.STAWKA_RAZEM;

        if (m_random.bounded(10) < 3) {
            // Own haulage: a vehicle, driver and sometimes a road card of the company.
            const std::size_t v = m_random.bounded(int(m_vehicleKeys.size()));
            o.IDPRZEWOZNIK = OwnerKey;
            o.PRZEWOZNIKWLASNY = 1;
            o.IDPOJAZDU = m_vehicleKeys[v];
            o.POJAZD = QStringLiteral("EL 452%1K").arg(v + 1);
            o.IDKIEROWCY = m_driverKeys[v];
            o.KIEROWCA = QString::fromUtf8(Drivers[v].firstName) + QLatin1Char(' ')
                + QString::fromUtf8(Drivers[v].surname);
            if (offset < 0 && m_random.bounded(2) == 0) {
                const std::size_t drawn = m_random.bounded(int(m_cardKeys.size()));
                // Over years, the card is one of the order's own weeks.
                const std::size_t card = spreadOverYears() ? roadCardNear(offset) : drawn;
                o.IDKARTYDR = m_cardKeys[card];
                o.NR_KARTY = int(card) + 1;
            }
        } else {
            o.IDPRZEWOZNIK = m_carrierKeys[m_random.bounded(int(m_carrierKeys.size()))];
            o.POJAZDOBCY = QStringLiteral("W%1 %2").arg(QChar(u'A' + m_random.bounded(20)))
                               .arg(10000 + m_random.bounded(89999));
            o.POJAZD = o.POJAZDOBCY;
            if (m_random.bounded(4) == 0) {
                o.IDTARYFYKOSZT = m_carrierTariffKeys[m_random.bounded(int(m_carrierTariffKeys.size()))];
                const TTaryfyprzewoznikaObj &cost = tariffWithKey(o.IDTARYFYKOSZT);
                o.KOSZTRAZEM = cents(o.KM_LADOWNE * cost.KWOTA_ZA_KM_LAD) + cents(o.KM_PUSTE * cost.KWOTA_ZA_KM)
                    + cents(o.ILOSC_GODZIN * cost.KWOTA_ZA_GODZ) + cents(o.PALETYILOSC * cost.KWOTA_ZA_PALETE);
            } else {
                o.KOSZTKWOTA = std::round(o.STAWKA_RAZEM * (0.74 + m_random.bounded(15) / 100.0));
                o.KOSZTRAZEM = o.KOSZTKWOTA;
            }
            o.KOSZTYRAZEM = o.KOSZTRAZEM;
            if (offset < -2 && m_random.bounded(10) < 7) {
                // The carrier's invoice has come in, up to today: so that a
                // list of this month's invoices is never empty.
                const QDate issued
                    = std::min(day.addDays(2 + int(m_random.bounded(4))), m_options.today);
                o.NUMER_FAKT_PRZEW = QStringLiteral("FV %1/%2/%3").arg(1 + m_random.bounded(400))
                                         .arg(issued.month(), 2, 10, QLatin1Char('0')).arg(issued.year());
                o.KWOTA_FAKT_PRZEW = o.KOSZTRAZEM;
                o.DATA_FAKT_WYSTAWIENIA = DateTime::fromDate(issued);
                const QDate received = std::min(issued.addDays(3), m_options.today);
                o.DATA_FAKT_OTRZYMANIA = DateTime::fromDate(received);
                settleCarrierInvoice(o, issued, m_options.today, carrierInvoices++);
            }
        }
        if (offset < -14 && m_random.bounded(10) < 3)
            o.ZAMKNIETE = 1;

        const int goodsCount = 1 + int(m_random.bounded(2));
        for (int g = 0; g < goodsCount; ++g)
            p.goods.push_back(int(m_random.bounded(int(Goods.size()))));
        plan.push_back(std::move(p));
    }
    return plan;
}

void DemoSeeder::planInvoices(std::vector<PlannedOrder> &orders)
{
    // Orders finished five days ago or earlier are mostly invoiced, up to
    // four orders of a client on one invoice.
    struct Invoice
    {
        int client;
        QDate issued;
        QDate sold;
        std::vector<std::size_t> orders;
    };
    std::vector<Invoice> invoices;
    std::map<int, std::size_t> open;   // client -> invoice being filled
    const QDate cutoff = m_options.today.addDays(-5);
    for (std::size_t i = 0; i < orders.size(); ++i) {
        const TZlecenia_przychObj &o = orders[i].order;
        if (o.DATA.date() > cutoff || m_random.bounded(10) >= 8)
            continue;
        const int client = orders[i].client;
        auto it = open.find(client);
        if (it == open.end() || invoices[it->second].orders.size() >= 4
            || invoices[it->second].sold.month() != o.DATA.date().month()) {
            invoices.push_back({client, QDate(), QDate(), {}});
            it = open.insert_or_assign(client, invoices.size() - 1).first;
        }
        Invoice &invoice = invoices[it->second];
        invoice.orders.push_back(i);
        invoice.sold = o.DATA.date();
        invoice.issued = std::min(o.DATA.date().addDays(3), m_options.today);
    }
    std::stable_sort(invoices.begin(), invoices.end(),
                     [](const Invoice &a, const Invoice &b) { return a.issued < b.issued; });

    TFakturyObj faktura(m_connection);
    std::map<std::pair<int, int>, int> numberInMonth;
    int stampFees = 0;
    for (const Invoice &invoice : invoices) {
        // Every sixth invoice charges a stamp fee with its first order, on
        // a line of its own (service kind 10).
        if (stampFees++ % 6 == 0)
            orders[invoice.orders.front()].order.OPLATA_SKARBOWA = StampFee;
        double net = 0.0;
        double fees = 0.0;
        for (std::size_t i : invoice.orders) {
            net += orders[i].order.STAWKA_RAZEM;
            fees += orders[i].order.OPLATA_SKARBOWA;
        }
        const int number = ++numberInMonth[{invoice.issued.year(), invoice.issued.month()}];
        faktura.NR_KOLEJNY = number;
        faktura.NUMER_PELNY = QStringLiteral("%1/%2/%3").arg(number, 3, 10, QLatin1Char('0'))
                                  .arg(invoice.issued.month(), 2, 10, QLatin1Char('0')).arg(invoice.issued.year());
        faktura.MASKA = QStringLiteral("%###;/;%M;/;%R");
        faktura.ID_RODZAJ_DOK = 1;
        faktura.GATUNEK_DOK_NADRZ = 4;
        faktura.ID_KONTRAHENTA = m_clientKeys[std::size_t(invoice.client)];
        faktura.DATA_WYSTAWIENIA = DateTime::fromDate(invoice.issued);
        faktura.DATA_SPRZEDAZY = DateTime::fromDate(invoice.sold);
        faktura.DATA_WPROWADZENIA = faktura.DATA_WYSTAWIENIA;
        faktura.ID_RODZ_PLATNOSCI = 2;
        faktura.ILOSC_DNI_PLATN = 30;
        faktura.ID_WYSTAWIL = 1 + int(m_random.bounded(3));
        faktura.KONTO_BANKOWE = 1;
        faktura.ID_DOKUMENTU = 1;
        faktura.ID_REJESTR = 2;
        faktura.IDWALUTA = DomesticCurrency;
        faktura.WARTOSC_NETTO = cents(net + fees);
        faktura.WARTOSC_BRUTTO = cents(net * 1.23) + fees;
        faktura.ZAPLACONA = invoice.issued.addDays(30) < m_options.today ? 1 : 0;
        faktura.KWOTA_ZAPLACONA = faktura.ZAPLACONA ? faktura.WARTOSC_BRUTTO : 0.0;
        faktura.Insert();
        const int key = lastKey(QStringLiteral("FAKTURY"));
        for (std::size_t i : invoice.orders)
            orders[i].order.IDFAKTURY = key;
    }
}

void DemoSeeder::insertOrder(PlannedOrder &planned, OrderWriter &writer)
{
    writer.orders.insert(planned.order);
    writer.lastOrderKey.exec();
    planned.key = writer.lastOrderKey.integer(0);

    TTowaryObj goods(m_connection);
    int number = 0;
    for (int g : planned.goods) {
        goods.ID_ZLECENIA = planned.key;
        goods.NAZWA = QString::fromUtf8(Goods[std::size_t(g)]);
        goods.NUMER1 = QStringLiteral("WZ %1").arg(planned.key * 3 + number);
        goods.ILOSC = planned.order.KM_PUSTE / double(planned.goods.size());
        goods.ILOSC_DEKLAROWANA = goods.ILOSC;
        goods.ID_JEDNOSTKI_MIARY = m_tonneUnit;
        goods.LP = ++number;
        writer.goods.insert(goods);
    }

    // The loading place (ID_ZRP 1) at the client, the unloading place (2) at the destination.
    TMiejsca_zlecObj places(m_connection);
    places.ID_ZLECENIA = planned.key;
    places.ID_KONTRAHENT = planned.order.IDKONTRAHENTA;
    const Company &client = Clients[std::size_t(planned.client)];
    for (const auto &[type, cityIndex, name, street] :
         {std::tuple{1, planned.fromCity, QString::fromUtf8(client.name), QString::fromUtf8(client.street)},
          {2, planned.toCity, QStringLiteral("Odbiorca %1").arg(planned.key), QStringLiteral("ul. Magazynowa 1")}}) {
        const City &city = Cities[std::size_t(cityIndex)];
        places.ID_ZRP = type;
        places.setSlot(1, {street, QString::fromUtf8(city.postcode), QString::fromUtf8(city.name),
                           city.country + 1, name});
        writer.places.insert(places);
    }
}

void DemoSeeder::insertInvoicePositions(const std::vector<PlannedOrder> &orders)
{
    TFaktury_pozycjeObj position(m_connection);
    BulkInsert<TFaktury_pozycjeObj> positions(m_connection);
    for (const PlannedOrder &p : orders) {
        if (p.order.IDFAKTURY == 0)
            continue;
        position.ID_FAKTURY = p.order.IDFAKTURY;
        position.TRESC = QStringLiteral("Usługa transportowa %1 - %2, zlecenie nr %3")
                             .arg(QString::fromUtf8(Cities[std::size_t(p.fromCity)].name),
                                  QString::fromUtf8(Cities[std::size_t(p.toCity)].name))
                             .arg(p.order.NUMER, 8, 10, QLatin1Char('0'));
        position.ILOSC = 1.0;
        position.JM = QStringLiteral("usł.");
        position.SWWKU = QStringLiteral("49.41.19");
        position.CENA_NETTO = p.order.STAWKA_RAZEM;
        position.ID_VAT = 1;
        position.ID_WALUTY = DomesticCurrency;
        position.WARTOSC_NETTO = p.order.STAWKA_RAZEM;
        position.WARTOSC_VAT = cents(p.order.STAWKA_RAZEM * 0.23);
        position.WARTOSC_BRUTTO = position.WARTOSC_NETTO + position.WARTOSC_VAT;
        position.KWOTA = position.WARTOSC_NETTO;
        position.ID_ZLECENIA = p.key;
        positions.insert(position);
        if (p.order.OPLATA_SKARBOWA > 0.0) {
            TFaktury_pozycjeObj fee(m_connection);
            fee.ID_FAKTURY = p.order.IDFAKTURY;
            fee.TRESC = QStringLiteral("Opłata skarbowa, zlecenie nr %1")
                            .arg(p.order.NUMER, 8, 10, QLatin1Char('0'));
            fee.ILOSC = 1.0;
            fee.JM = QStringLiteral("szt.");
            fee.CENA_NETTO = p.order.OPLATA_SKARBOWA;
            fee.ID_VAT = ExemptVat;
            fee.ID_WALUTY = DomesticCurrency;
            fee.RODZAJ_USLUGI = 10;
            fee.WARTOSC_NETTO = fee.CENA_NETTO;
            fee.WARTOSC_BRUTTO = fee.CENA_NETTO;
            fee.KWOTA = fee.CENA_NETTO;
            fee.ID_ZLECENIA = p.key;
            positions.insert(fee);
        }
    }
}

void DemoSeeder::seedOrders()
{
    std::vector<PlannedOrder> orders = planOrders();
    planInvoices(orders);
    OrderWriter writer(m_connection);
    for (PlannedOrder &p : orders)
        insertOrder(p, writer);
    insertInvoicePositions(orders);
}

void DemoSeeder::seedTemplates()
{
    // Templates: undated orders with a planned pallet count, copied onto a
    // chosen day by the register.
    OrderWriter writer(m_connection);
    for (int i = 0; i < 3; ++i) {
        PlannedOrder p(m_connection);
        TZlecenia_przychObj &o = p.order;
        p.client = i;
        p.fromCity = Clients[std::size_t(i)].city;
        p.toCity = (p.fromCity + 5 + i) % 20;
        o.IDKONTRAHENTA = m_clientKeys[std::size_t(i)];
        o.IDFAKTUROBIORCY = o.IDKONTRAHENTA;
        o.IDPRZEWOZNIK = m_carrierKeys[std::size_t(i)];
        o.IDMIASTO_OD = m_cityKeys[std::size_t(p.fromCity)];
        o.IDMIASTO_DO = m_cityKeys[std::size_t(p.toCity)];
        o.ODLEGLOSC = distance(p.fromCity, p.toCity);
        o.KM_LADOWNE = o.ODLEGLOSC;
        o.PALETYPLAN = 10 + 6 * i;
        o.PALETYILOSC = o.PALETYPLAN;
        o.KWOTA = std::round(o.ODLEGLOSC * 3.2 + 200.0);
        o.STAWKA_RAZEM = o.KWOTA;
        o.KOSZTKWOTA = std::round(o.KWOTA * 0.8);
        o.KOSZTRAZEM = o.KOSZTKWOTA;
        o.TYP = QStringLiteral("Krajowe");
        o.IDUSER = 1;
        o.FILTR1 = 1;
        p.goods = {i, i + 3};
        insertOrder(p, writer);
    }
}

QStringList DemoSeeder::summary(Connection &connection)
{
    const auto scalar = [&](const QString &sql) {
        Statement st(connection);
        st.add(sql);
        st.exec();
        return st.string(0);
    };
    QStringList lines;
    lines << QStringLiteral("Firma: %1").arg(scalar(QStringLiteral("SELECT NAZWA FROM DANE_FIRMY")));
    const std::pair<const char *, const char *> tables[] = {
        {"Kontrahenci", "KONTRAHENCI"}, {"Miasta", "MIASTA"}, {"Odległości", "ODLEGLOSCI"},
        {"Taryfy", "TARYFYPRZEWOZNIKA"}, {"Komórki cenników", "CENNIKI_KRAJ"}, {"Kierowcy", "KIEROWCY"},
        {"Pojazdy", "POJAZDY"}, {"Karty drogowe", "KARTY_DR"}, {"Zlecenia", "ZLECENIA_PRZYCH"},
        {"Towary", "TOWARY"}, {"Miejsca zleceń", "MIEJSCA_ZLEC"}, {"Faktury", "FAKTURY"},
        {"Pozycje faktur", "FAKTURY_POZYCJE"}, {"Użytkownicy", "USERS"}, {"Formatki", "FORMS"},
        {"Ustawienia", "KONFIGURACJA"}};
    for (const auto &[label, table] : tables) {
        lines << QStringLiteral("%1: %2").arg(QString::fromUtf8(label),
                                              scalar(QStringLiteral("SELECT COUNT(*) FROM ") + QLatin1String(table)));
    }
    lines << QStringLiteral("Wzorce zleceń: %1")
                 .arg(scalar(QStringLiteral("SELECT COUNT(*) FROM ZLECENIA_PRZYCH WHERE DATA IS NULL AND PALETYPLAN<>0")));
    lines << QStringLiteral("Zlecenia z fakturą przewoźnika: %1")
                 .arg(scalar(QStringLiteral("SELECT COUNT(*) FROM ZLECENIA_PRZYCH WHERE NUMER_FAKT_PRZEW <> ''")));
    Statement st(connection);
    st.add(QStringLiteral("SELECT FIRST 5 NUMER, DATA, KONTRAHENT, PRZEWOZNIK, MIASTOOD, MIASTODO, STAWKA_RAZEM"));
    st.add(QStringLiteral("FROM VZLECENIA_PRZYCH WHERE DATA >= CURRENT_DATE ORDER BY DATA, NUMER"));
    st.exec();
    if (!st.atEnd())
        lines << QStringLiteral("Najbliższe zlecenia:");
    for (; !st.atEnd(); st.next()) {
        lines << QStringLiteral("  %1  %2  %3 -> %4  %5 / %6  %7 zł")
                     .arg(st.integer(0), 8, 10, QLatin1Char('0'))
                     .arg(st.dateTime(1).date().toString(QStringLiteral("yyyy-MM-dd")), st.string(4), st.string(5),
                          st.string(2), st.string(3))
                     .arg(st.number(6), 0, 'f', 2);
    }
    return lines;
}
