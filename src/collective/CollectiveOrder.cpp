#include "CollectiveOrder.h"

#include "TTaryfyprzewoznikaObj.h"
#include "TVzlecenia_zbiorObj.h"
#include "TZlecenia_zbiorObj.h"

#include <cmath>

namespace {

// The editor's date fields hold days; hours typed beside them stay out.
DateTime dayOnly(DateTime value)
{
    return DateTime(std::floor(value.days()));
}

} // namespace

CollectiveOrder CollectiveOrder::load(Connection &connection, int key, int ownerKey)
{
    const TVzlecenia_zbiorObj stored = TVzlecenia_zbiorObj(connection).SelectById(key);
    CollectiveOrder order;
    order.number = stored.NUMER;
    order.date = stored.DATA;
    order.paymentDays = stored.TERMINPLATNOSCI;
    order.tripNumber = stored.NRJAZDY;
    order.vatRate = stored.IDVAT_PRZEWOZNIK;
    order.carrierAmount = stored.KWOTA_PRZEWOZNIKA;
    order.carrierIssued = stored.DATAWYSTAWIENIA_PRZEWOZNIK;
    order.textNumber = stored.IDUWAGI;
    order.ownFleet = ownerKey != 0 && stored.IDPRZEWOZNIK == ownerKey;
    order.carrier = stored.IDPRZEWOZNIK;
    order.vehicle = stored.IDPOJAZDU;
    order.vehicleText = stored.POJAZD;
    order.driver = stored.IDKIEROWCY;
    order.driverText = stored.KIEROWCA;
    order.ownRate = stored.STAWKA;
    order.loadingDate = stored.DATAZALADUNKU;
    order.unloadingDate = stored.DATAWYLADUNKU;
    order.ownTariff = stored.IDTARYFYWLASNEJ;
    if (order.ownTariff != 0)
        order.ownTariffName
            = TTaryfyprzewoznikaObj(connection).SelectById(order.ownTariff).NAZWA_STAWKI;
    return order;
}

TZlecenia_zbiorObj CollectiveOrder::record(Connection &connection, int key, int ownerKey) const
{
    TZlecenia_zbiorObj r(connection);
    r.ID_ZLECENIA_ZBIOR = key;
    r.NUMER = number;
    r.DATA = dayOnly(date);
    r.DATAZALADUNKU = dayOnly(loadingDate);
    r.DATAWYLADUNKU = dayOnly(unloadingDate);
    r.TERMINPLATNOSCI = paymentDays;
    r.IDUWAGI = textNumber;
    r.IDTARYFYWLASNEJ = ownTariff;
    r.NRJAZDY = tripNumber;
    r.DATAWYSTAWIENIA_PRZEWOZNIK = dayOnly(carrierIssued);
    r.KWOTA_PRZEWOZNIKA = carrierAmount;
    r.IDVAT_PRZEWOZNIK = vatRate;
    r.IDPOJAZDU = vehicle;
    r.IDKIEROWCY = driver;
    if (ownFleet) {
        r.IDPRZEWOZNIK = ownerKey;
        r.STAWKA = ownRate;
    } else {
        r.IDPRZEWOZNIK = carrier;
        r.FAKTURA_OBCA = carrierInvoice;
    }
    return r;
}

bool CollectiveOrder::save(Connection &connection, int &key, int ownerKey) const
{
    TZlecenia_zbiorObj r = record(connection, key, ownerKey);
    if (key != 0)
        return r.Update();
    if (!r.Insert())
        return false;
    key = r.ID_ZLECENIA_ZBIOR;
    return true;
}
