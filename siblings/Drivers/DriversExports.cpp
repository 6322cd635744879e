// The functions the Drivers library exports to the suite; nothing else
// leaves it.
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmKierowcy.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_Kierowcy(std::int32_t UserID, Connection *Database,
                                         Transaction *Transaction)
{
    return SiblingRun::window<TfrmKierowcy>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_Mechanicy(std::int32_t UserID, Connection *Database,
                                          Transaction *Transaction)
{
    return SiblingRun::window<TfrmMechanicy>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_WybierzKierowcy(std::int32_t UserID, std::int32_t CurrentID,
                                                Connection *Database, Transaction *Transaction,
                                                std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmKierowcy>(UserID, CurrentID, Database, Transaction, SelectedID);
}

SIBLING_EXPORT std::int32_t Run_WybierzMechanicy(std::int32_t UserID, std::int32_t CurrentID,
                                                 Connection *Database, Transaction *Transaction,
                                                 std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmMechanicy>(UserID, CurrentID, Database, Transaction,
                                             SelectedID);
}

static_assert(std::is_same_v<decltype(&Run_Kierowcy), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_Mechanicy), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzKierowcy), SiblingSelectEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzMechanicy), SiblingSelectEntry>);
