// The functions the Cities library exports to the suite; nothing else
// leaves it.
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmMiejscowosci.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_Miasta(std::int32_t UserID, Connection *Database,
                                       Transaction *Transaction)
{
    return SiblingRun::window<TfrmMiejscowosci>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_WybierzMiasta(std::int32_t UserID, std::int32_t CurrentID,
                                              Connection *Database, Transaction *Transaction,
                                              std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmMiejscowosci>(UserID, CurrentID, Database, Transaction,
                                                SelectedID);
}

static_assert(std::is_same_v<decltype(&Run_Miasta), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzMiasta), SiblingSelectEntry>);
