// The functions the Contractors library exports to the suite; nothing else
// leaves it.
#include "Privileges.h"
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmAddEditKontrahenci.h"
#include "TfrmKontrahenci.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_Kontrahenci(std::int32_t UserID, Connection *Database,
                                            Transaction *Transaction)
{
    return SiblingRun::window<TfrmKontrahenci>(UserID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_WybierzKontrahenci(std::int32_t UserID, std::int32_t CurrentID,
                                                   Connection *Database,
                                                   Transaction *Transaction,
                                                   std::int32_t *SelectedID)
{
    return SiblingRun::select<TfrmKontrahenci>(UserID, CurrentID, Database, Transaction,
                                               SelectedID);
}

// CurrentID is not used: the editor starts empty.
SIBLING_EXPORT std::int32_t Run_AddKontrahenci(std::int32_t UserID, std::int32_t,
                                               Connection *Database, Transaction *Transaction,
                                               std::int32_t *SelectedID)
{
    return SiblingRun::edit<TfrmAddEditKontrahenci>(Privileges::Add, UserID, 0, Database,
                                                    Transaction, SelectedID);
}

SIBLING_EXPORT std::int32_t Run_EditKontrahenci(std::int32_t UserID, std::int32_t CurrentID,
                                                Connection *Database, Transaction *Transaction,
                                                std::int32_t *SelectedID)
{
    return SiblingRun::edit<TfrmAddEditKontrahenci>(Privileges::Edit, UserID, CurrentID,
                                                    Database, Transaction, SelectedID);
}

static_assert(std::is_same_v<decltype(&Run_Kontrahenci), SiblingRegisterEntry>);
static_assert(std::is_same_v<decltype(&Run_WybierzKontrahenci), SiblingSelectEntry>);
static_assert(std::is_same_v<decltype(&Run_AddKontrahenci), SiblingSelectEntry>);
static_assert(std::is_same_v<decltype(&Run_EditKontrahenci), SiblingSelectEntry>);
