#pragma once

#include "TMiastaObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

// The cities' register and editor: a city has a name, a postal code in its
// country's form and a country (Poland for a new one). Orders and the
// distances between cities point at them.
namespace Cities {

TableRegister<TMiastaObj>::Definition listing();
TableRecordEditing<TMiastaObj>::Definition editing();

} // namespace Cities
