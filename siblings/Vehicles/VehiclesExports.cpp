// The functions the Vehicles library exports to the suite; nothing else
// leaves it.
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmPojazdy.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_Pojazdy(std::int32_t UserID, Connection *Database,
                                        Transaction *Transaction)
{
    return SiblingRun::window<TfrmPojazdy>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_WybierzPojazd(std::int32_t UserID, std::int32_t CurrentID,
                                              Connection *Database, Transaction *Transaction,
                                              std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmPojazdy>(UserID, CurrentID, Database, Transaction, SelectedID);
}

static_assert(std::is_same_v<decltype(&Run_Pojazdy), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzPojazd), SiblingSelectEntry>);
