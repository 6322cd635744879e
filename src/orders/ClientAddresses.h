#pragma once

#include "TMiejsca_zlecObj.h"

#include <optional>

class Connection;

namespace ClientAddresses {

// The first address of the client's earlier places whose first street line
// reads exactly as typed; nothing when the client has none such. The typed
// text is bound as a parameter. DbError to the caller.
std::optional<TMiejsca_zlecObj::Slot> find(Connection &connection, int clientKey,
                                           const QString &typed);

} // namespace ClientAddresses
