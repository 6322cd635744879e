#pragma once

#include <QString>

class Connection;
class TMiejsca_zlecObj;

// The loading and unloading place records of an order (MIEJSCA_ZLEC,
// ID_ZRP 1 and 2).
namespace OrderPlaces {

enum Type { Loading = 1, Unloading = 2 };

// The selection of an order's places of a type, as SelectClause takes it.
QString clause(int orderKey, int type);

// The order's first place of the type; when it has none, an empty place of
// that order and type is inserted first. The record's key is 0 when the
// insert failed (the table object has said why).
TMiejsca_zlecObj placeOf(Connection &connection, int orderKey, int type);

} // namespace OrderPlaces
