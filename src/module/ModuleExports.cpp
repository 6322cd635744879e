// The functions the module exports to the host; nothing else leaves it.
#include "ModuleEntryPoints.h"
#include "RunRepWspolnicy.h"
#include "RunZlecPrzychodzace.h"

#include <QtGlobal>

#include <type_traits>

extern "C" Q_DECL_EXPORT std::int32_t Run_ZlecPrzychodzace(std::int32_t UserID,
                                                          Connection *Database,
                                                          Transaction *Transaction)
{
    static_assert(std::is_same_v<decltype(&Run_ZlecPrzychodzace), ModuleEntry>);
    return runZlecPrzychodzace(UserID, Database, Transaction);
}

extern "C" Q_DECL_EXPORT std::int32_t Run_RepWspolnicy(std::int32_t UserID, Connection *Database,
                                                      Transaction *Transaction)
{
    static_assert(std::is_same_v<decltype(&Run_RepWspolnicy), ModuleEntry>);
    return runRepWspolnicy(UserID, Database, Transaction);
}
