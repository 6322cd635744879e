// The functions the Trailers library exports to the suite; nothing else
// leaves it.
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmNaczepy.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_Naczepy(std::int32_t UserID, Connection *Database,
                                        Transaction *Transaction)
{
    return SiblingRun::window<TfrmNaczepy>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_WybierzNaczepy(std::int32_t UserID, std::int32_t CurrentID,
                                               Connection *Database, Transaction *Transaction,
                                               std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmNaczepy>(UserID, CurrentID, Database, Transaction, SelectedID);
}

static_assert(std::is_same_v<decltype(&Run_Naczepy), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzNaczepy), SiblingSelectEntry>);
