// The functions the Places library exports to the suite; nothing else
// leaves it.
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmMiejsca.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_Miejsca(std::int32_t UserID, Connection *Database,
                                        Transaction *Transaction)
{
    return SiblingRun::window<TfrmMiejsca>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_WybierzMiejsca(std::int32_t UserID, std::int32_t CurrentID,
                                               Connection *Database, Transaction *Transaction,
                                               std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmMiejsca>(UserID, CurrentID, Database, Transaction, SelectedID);
}

static_assert(std::is_same_v<decltype(&Run_Miejsca), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzMiejsca), SiblingSelectEntry>);
