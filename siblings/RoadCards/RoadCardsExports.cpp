// The functions the RoadCards library exports to the suite; nothing else
// leaves it.
#include "RoadCardEntries.h"
#include "SiblingEntryPoints.h"
#include "SiblingExport.h"
#include "SiblingRun.h"
#include "TfrmKartyDrogowe.h"

#include <type_traits>

SIBLING_EXPORT std::int32_t Run_EdytujKarte(std::int32_t CardID, Connection *Database,
                                            Transaction *Transaction)
{
    return RoadCardEntries::editCard(CardID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_GenerujKarte(std::int32_t OrderID, Connection *Database,
                                             Transaction *Transaction)
{
    return RoadCardEntries::generateCard(OrderID, Database, Transaction);
}

SIBLING_EXPORT std::int32_t Run_KartyDrogowe(std::int32_t UserID, Connection *Database,
                                             Transaction *Transaction)
{
    return SiblingRun::window<TfrmKartyDrogowe>(UserID, Database, Transaction);
}

static_assert(std::is_same_v<decltype(&Run_EdytujKarte), SiblingRoadCardEntry>);
static_assert(std::is_same_v<decltype(&Run_GenerujKarte), SiblingRoadCardEntry>);
static_assert(std::is_same_v<decltype(&Run_KartyDrogowe), SiblingRegisterEntry>);
