#pragma once

#include "TCompareOp.h"
#include "TableObject.h"

// One record by its key, for every table object: through SelectById where
// the table object has it, else through a select on the key column. A key
// that is not there gives a record whose key is 0.
template <class Obj>
Obj recordByKey(Connection &connection, int key)
{
    if constexpr (Obj::HasSelectById) {
        return Obj(connection).SelectById(key);
    } else {
        std::vector<Obj> found
            = Obj(connection).SelectWhere(Obj::description().info.key, opEqual, key);
        return found.empty() ? Obj(connection) : std::move(found.front());
    }
}
