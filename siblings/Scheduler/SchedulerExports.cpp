// The functions the Scheduler library exports to the suite; nothing else
// leaves it.
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmPokazTerminy.h"
#include "TfrmTerminarz.h"

#include <type_traits>

// The last argument is reserved; callers pass 0.
SIBLING_EXPORT std::int32_t Run_Terminarz(std::int32_t UserID, Connection *Database,
                                          Transaction *Transaction, std::int32_t)
{
    return SiblingRun::window<TfrmTerminarz>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_PokazTerminy(std::int32_t UserID, Connection *Database,
                                             Transaction *Transaction, std::int32_t)
{
    return SiblingRun::window<TfrmPokazTerminy>(UserID, Database, Transaction);
}

static_assert(std::is_same_v<decltype(&Run_Terminarz), SiblingSchedulerEntry>);
static_assert(std::is_same_v<decltype(&Run_PokazTerminy), SiblingSchedulerEntry>);
