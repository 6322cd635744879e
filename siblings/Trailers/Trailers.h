#pragma once

#include "TNaczepyObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

// The trailers' register and editor: registration and documents, type,
// weight, dimensions and load capacity. The capacity (LADOWNOSC) counts
// pallets: the collective orders' view offers it as the pallets a vehicle
// with its default trailer takes.
namespace Trailers {

TableRegister<TNaczepyObj>::Definition listing();
TableRecordEditing<TNaczepyObj>::Definition editing();

} // namespace Trailers
