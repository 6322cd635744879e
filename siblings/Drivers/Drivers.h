#pragma once

#include "TKierowcyObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

// The drivers' register and editor: what they list, which fields a driver
// has and what must hold before one is saved. Mechanics are the drivers in
// pay group (GRUPA_ZASZEREGOWANIA) 1, "mechanik"; the other groups are
// drivers.
namespace Drivers {

enum class Staff { All, Mechanics };

inline constexpr int MechanicGroup = 1;

bool isMechanic(const TKierowcyObj &driver);
// "first name, a space and surname", as the editors of orders show a driver.
QString displayName(const TKierowcyObj &driver);

TableRegister<TKierowcyObj>::Definition listing(Staff staff);
TableRecordEditing<TKierowcyObj>::Definition editing(Staff staff);

// The first thing that keeps the driver from being saved: PESEL, NIP and
// postal code that fail their checks, a date of birth the PESEL contradicts.
Problem check(const TKierowcyObj &driver);

} // namespace Drivers
