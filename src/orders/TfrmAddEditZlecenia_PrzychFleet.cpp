// The order editor's vehicle and trailer pickers, through the suite's
// vehicles and trailers modules.
#include "TfrmAddEditZlecenia_Przych.h"

#include "TDaneFirmy.h"
#include "TKierowcyObj.h"
#include "TNaczepyObj.h"
#include "TPojazdyObj.h"

#include <QLineEdit>

namespace {

constexpr int RegistrationLength = 15;

} // namespace

void TfrmAddEditZlecenia_Przych::acPojazdExecute()
{
    int chosen = 0;
    if (TDaneFirmy().SelectVehicle(0, chosen) != 1)
        return;
    Connection &connection = m_order.connection();
    const TPojazdyObj vehicle = TPojazdyObj(connection).SelectById(chosen);
    edPojazd->setText(vehicle.NR_REJ.left(RegistrationLength));
    // The vehicle's crew replaces the one shown, as in the collective orders.
    const TKierowcyObj driver = TKierowcyObj(connection).SelectById(vehicle.DEF_KIEROWCA);
    m_driverKey = driver.ID_KIEROWCA;
    ceKierowca->setText(m_driverKey == 0 ? QString() : driver.IMIE + u' ' + driver.NAZWISKO);
    if (vehicle.DEF_NACZEPA != 0) {
        const TNaczepyObj trailer = TNaczepyObj(connection).SelectById(vehicle.DEF_NACZEPA);
        edNaczepa->setText(trailer.NR_REJ.left(RegistrationLength));
    }
}

void TfrmAddEditZlecenia_Przych::acNaczepaExecute()
{
    int chosen = 0;
    if (TDaneFirmy().SelectTrailer(0, chosen) != 1)
        return;
    edNaczepa->setText(
        TNaczepyObj(m_order.connection()).SelectById(chosen).NR_REJ.left(RegistrationLength));
}
