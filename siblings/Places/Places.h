#pragma once

#include "TMiejscaObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

// The places' register and editor: loading and unloading addresses with a
// name, address, postal code in the country's form, town, country and
// remarks. Orders' places and collective orders point at them.
namespace Places {

TableRegister<TMiejscaObj>::Definition listing();
TableRecordEditing<TMiejscaObj>::Definition editing();

} // namespace Places
