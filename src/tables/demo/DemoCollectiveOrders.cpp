// Collective orders of the demo company: runs of outside carriers with
// their invoices and runs of the own fleet, one of them loaded with more
// pallets than its trailer takes, each with orders of the days around
// today put on it. The orders left free are what a new run picks from.
#include "DemoSeeder.h"
#include "Statement.h"
#include "TPojazdyObj.h"
#include "TZlecenia_zbiorObj.h"

#include <deque>

namespace {

struct Run
{
    int carrier;            // the own company for the own fleet
    int vehicle;
    int driver;
    double ownRate;         // own fleet only
    const char *invoice;    // outside carriers only: their invoice number
    double carrierAmount;
    std::vector<int> plannedPallets;   // one order each
};

} // namespace

void DemoSeeder::seedCollectiveOrders()
{
    // Carriers come with their own tractor units; what the suite's vehicle
    // register keeps of them is the plate, the pallets and whose they are.
    TPojazdyObj vehicle(m_connection);
    std::vector<int> carrierVehicles;
    for (const auto &[plate, carrier] : {std::pair{"WZ 7431N", 0}, {"PO 2210K", 1}}) {
        vehicle.NR_REJ = QString::fromLatin1(plate);
        vehicle.TYP = QStringLiteral("Ciągnik siodłowy z naczepą");
        vehicle.LADOWNOSC = 33;
        vehicle.DEF_WYKONAWCA = m_carrierKeys[std::size_t(carrier)];
        vehicle.Insert();
        carrierVehicles.push_back(lastKey(QStringLiteral("POJAZDY")));
    }

    const Run runs[] = {
        {m_carrierKeys[0], carrierVehicles[0], 0, 0.0, "FV 311/%1", 2400.0, {10, 8, 12}},
        {m_carrierKeys[1], carrierVehicles[1], 0, 0.0, "12/%1/T", 1850.0, {14, 11}},
        {OwnerKey, m_vehicleKeys[0], m_driverKeys[0], 2100.0, nullptr, 0.0, {12, 11, 10}},
        {OwnerKey, m_vehicleKeys[1], m_driverKeys[1], 1900.0, nullptr, 0.0, {14, 12, 10}},
    };

    // Orders of the days around today that are not invoiced yet, oldest
    // key first, so that the same seed gives the same runs.
    std::deque<int> free;
    {
        Statement st(m_connection);
        st.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH"));
        st.add(QStringLiteral("WHERE DATA BETWEEN :aOd AND :aDo"));
        st.add(QStringLiteral("AND (IDFAKTURY IS NULL OR IDFAKTURY = 0)"));
        st.add(QStringLiteral("ORDER BY ID_ZLECENIA_PRZYCH"));
        st.bind(QStringLiteral("aOd"), DateTime::fromDate(m_options.today.addDays(-4)));
        st.bind(QStringLiteral("aDo"), DateTime::fromDate(m_options.today.addDays(3)));
        st.exec();
        for (; !st.atEnd(); st.next())
            free.push_back(st.integer(0));
    }

    TZlecenia_zbiorObj run(m_connection);
    int number = 0;
    for (const Run &r : runs) {
        run = TZlecenia_zbiorObj(m_connection);
        run.NUMER = ++number;
        run.DATA = DateTime::fromDate(m_options.today.addDays(-3 + number));
        run.DATAZALADUNKU = DateTime::fromDate(m_options.today.addDays(-2 + number));
        run.DATAWYLADUNKU = DateTime::fromDate(m_options.today.addDays(-1 + number));
        run.IDPRZEWOZNIK = r.carrier;
        run.IDPOJAZDU = r.vehicle;
        run.IDKIEROWCY = r.driver;
        run.TERMINPLATNOSCI = r.invoice ? 30 : 35;
        run.IDUWAGI = 1;
        run.NRJAZDY = number;
        run.IDUSER = 1;
        run.IDVAT_PRZEWOZNIK = 1;
        run.STAWKA = r.ownRate;
        if (r.invoice) {
            run.FAKTURA_OBCA = QString::fromLatin1(r.invoice).arg(m_options.today.year());
            run.DATAWYSTAWIENIA_PRZEWOZNIK = run.DATAWYLADUNKU;
            run.KWOTA_PRZEWOZNIKA = r.carrierAmount;
        }
        run.Insert();

        Statement plate(m_connection);
        plate.add(QStringLiteral("SELECT POJAZD, KIEROWCA FROM VZLECENIA_ZBIOR"));
        plate.add(QStringLiteral("WHERE ID_ZLECENIA_ZBIOR = :aId"));
        plate.bind(QStringLiteral("aId"), run.ID_ZLECENIA_ZBIOR);
        plate.exec();
        const QString registration = plate.string(0);
        const QString driver = plate.string(1);
        plate.close();
        for (const int pallets : r.plannedPallets) {
            if (free.empty())
                break;
            Statement st(m_connection);
            st.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH"));
            st.add(QStringLiteral("SET IDZLECENIAZBIOR = :aZbior, PALETYPLAN = :aPlan,"));
            st.add(QStringLiteral("POJAZD = :aPojazd, KIEROWCA = :aKierowca, LADOWNOSCPALET = 33"));
            st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH = :aId"));
            st.bind(QStringLiteral("aZbior"), run.ID_ZLECENIA_ZBIOR);
            st.bind(QStringLiteral("aPlan"), pallets);
            st.bind(QStringLiteral("aPojazd"), registration);
            st.bind(QStringLiteral("aKierowca"), driver);
            st.bind(QStringLiteral("aId"), free.front());
            st.exec();
            free.pop_front();
        }
    }
}
