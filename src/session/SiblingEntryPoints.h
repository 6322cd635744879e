#pragma once

#include <cstdint>

class Connection;
class Transaction;

// The exported entry points of the suite's sibling modules (drivers, places,
// cities, vehicles, trailers, contractors, road cards, the scheduler), as
// they are called from here. A sibling exports them extern "C".
extern "C" {

// Run_Kierowcy, Run_Mechanicy, Run_Miejsca, Run_Miasta, Run_Pojazdy,
// Run_Naczepy, Run_Kontrahenci, Run_KartyDrogowe: the sibling's register
// window, opened for browsing; its modal result (1 OK, 2 cancel).
using SiblingRegisterEntry = std::int32_t (*)(std::int32_t userID, Connection *database,
                                              Transaction *transaction);

// Run_WybierzKierowcy, Run_WybierzMiejsca, ...: the sibling's selection
// window. Writes the chosen key to *selectedID; 1 when a record was chosen.
// Run_AddKontrahenci and Run_EditKontrahenci have the same shape: the
// contractor's editor for a new record (currentID unused) or for currentID;
// 1 when it was saved, its key then in *selectedID.
using SiblingSelectEntry = std::int32_t (*)(std::int32_t userID, std::int32_t currentID,
                                            Connection *database, Transaction *transaction,
                                            std::int32_t *selectedID);

// Run_EdytujKarte: edits a road card; non-zero when it was saved.
// Run_GenerujKarte has the same shape with an incoming order's key: opens
// the road card of the order, a new one filled from the order when it has
// none; the card's key when it was saved (the order then points at it), 0
// otherwise.
using SiblingRoadCardEntry = std::int32_t (*)(std::int32_t cardID, Connection *database,
                                              Transaction *transaction);

// Run_Terminarz and Run_PokazTerminy: the scheduler's windows.
using SiblingSchedulerEntry = std::int32_t (*)(std::int32_t userID, Connection *database,
                                               Transaction *transaction, std::int32_t reserved);
}
