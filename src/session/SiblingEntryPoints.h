#pragma once

#include <cstdint>

class Connection;
class Transaction;

// The exported entry points of the suite's sibling modules (drivers, places,
// cities, vehicles, trailers, contractors, road cards, the scheduler), as
// they are called from here. A sibling exports them extern "C".
extern "C" {

// Run_WybierzKierowcy, Run_WybierzMiejsca, ...: the sibling's selection
// window. Writes the chosen key to *selectedID; 1 when a record was chosen.
using SiblingSelectEntry = std::int32_t (*)(std::int32_t userID, std::int32_t currentID,
                                            Connection *database, Transaction *transaction,
                                            std::int32_t *selectedID);

// Run_EdytujKarte: edits a road card; non-zero when it was saved.
using SiblingRoadCardEntry = std::int32_t (*)(std::int32_t cardID, Connection *database,
                                              Transaction *transaction);

// Run_Terminarz and Run_PokazTerminy: the scheduler's windows.
using SiblingSchedulerEntry = std::int32_t (*)(std::int32_t userID, Connection *database,
                                               Transaction *transaction, std::int32_t reserved);
}
