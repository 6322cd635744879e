#pragma once

#include "Choices.h"
#include "EditorFields.h"

#include <QString>

class Connection;

// The countries of KRAJE as the editors of the siblings use them: a
// drop-down list by name and the postal code form of each.
namespace Countries {

ChoiceSource choices();

// The key of Poland (SYMBOL "PL"); 0 when the table has none.
int polandKey(Connection &connection);

// What is wrong with a postal code (the editors' field "edKod") in a
// country: it must follow the country's mask, Poland's NN-NNN also when its
// mask is not filled in. Nothing is checked without a country, a mask or a
// code. A database failure throws DbError.
Problem postalCodeField(Connection &connection, int countryKey, const QString &code);

} // namespace Countries
