#pragma once

#include "TPojazdyObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

// The vehicles' register and editor: registration and documents, make and
// type, weights, the default driver, co-driver and trailer (which the
// editors of orders take over when a vehicle is picked), fuel norm and
// readings.
namespace Vehicles {

TableRegister<TPojazdyObj>::Definition listing();
TableRecordEditing<TPojazdyObj>::Definition editing();

// Registration taken, implausible year, the same person as driver and
// co-driver. A database failure throws DbError.
Problem check(const TPojazdyObj &vehicle, Connection &connection);

} // namespace Vehicles
