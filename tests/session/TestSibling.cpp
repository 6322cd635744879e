// A stand-in for the suite's sibling modules, built under their file names
// into a Library folder for the launcher tests. Every call is appended to
// the file named by HAULIX_TEST_SIBLING_LOG, and so are loading and
// unloading (a static object's constructor and destructor), so a test sees
// exactly what arrived and whether the library stayed in memory. The
// answer comes from HAULIX_TEST_SIBLING_RESULT (default 1) and
// HAULIX_TEST_SIBLING_CHOICE (the key written back).

#include "SiblingEntryPoints.h"

#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <type_traits>

#define SIBLING_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

void record(const char *format, ...)
{
    const char *path = std::getenv("HAULIX_TEST_SIBLING_LOG");
    if (!path)
        return;
    std::FILE *log = std::fopen(path, "a");
    if (!log)
        return;
    va_list arguments;
    va_start(arguments, format);
    std::vfprintf(log, format, arguments);
    va_end(arguments);
    std::fputc('\n', log);
    std::fclose(log);
}

int setting(const char *name, int fallback)
{
    const char *value = std::getenv(name);
    return value ? std::atoi(value) : fallback;
}

struct LoadRecorder
{
    LoadRecorder() { record("load " SIBLING_NAME); }
    ~LoadRecorder() { record("unload " SIBLING_NAME); }
} loadRecorder;

// Counts calls while loaded; back at 0 after every reload.
int callsSinceLoad = 0;

[[maybe_unused]] std::int32_t select(const char *entry, std::int32_t userID, std::int32_t currentID,
                    Connection *database, Transaction *transaction, std::int32_t *selectedID)
{
    ++callsSinceLoad;
    record("%s user=%d current=%d database=%p transaction=%p calls=%d", entry, userID, currentID,
           static_cast<void *>(database), static_cast<void *>(transaction), callsSinceLoad);
    const int result = setting("HAULIX_TEST_SIBLING_RESULT", 1);
    if (result == 1)
        *selectedID = setting("HAULIX_TEST_SIBLING_CHOICE", 0);
    return result;
}

[[maybe_unused]] std::int32_t window(const char *entry)
{
    record("%s", entry);
    return 0;
}

} // namespace

#define SIBLING_SELECT(name)                                                                      \
    SIBLING_EXPORT std::int32_t name(std::int32_t userID, std::int32_t currentID,                 \
                                     Connection *database, Transaction *transaction,              \
                                     std::int32_t *selectedID)                                    \
    {                                                                                             \
        return select(#name, userID, currentID, database, transaction, selectedID);               \
    }                                                                                             \
    static_assert(std::is_same_v<decltype(&name), SiblingSelectEntry>)

#define SIBLING_WINDOW(name)                                                                      \
    SIBLING_EXPORT std::int32_t name() { return window(#name); }

#ifndef SIBLING_WITHOUT_SELECTION
SIBLING_SELECT(Run_WybierzKierowcy);
SIBLING_SELECT(Run_WybierzMechanicy);
SIBLING_SELECT(Run_WybierzMiejsca);
SIBLING_SELECT(Run_WybierzMiasta);
SIBLING_SELECT(Run_WybierzPojazd);
SIBLING_SELECT(Run_WybierzNaczepy);
SIBLING_SELECT(Run_WybierzKontrahenci);
#endif

#ifndef SIBLING_WITHOUT_REGISTER_WINDOWS
SIBLING_WINDOW(Run_Kierowcy)
SIBLING_WINDOW(Run_Mechanicy)
SIBLING_WINDOW(Run_Miejsca)
SIBLING_WINDOW(Run_Miasta)
SIBLING_WINDOW(Run_Pojazdy)
SIBLING_WINDOW(Run_Naczepy)
SIBLING_WINDOW(Run_Kontrahenci)
SIBLING_WINDOW(Run_AddKontrahenci)
SIBLING_WINDOW(Run_EditKontrahenci)
SIBLING_WINDOW(Run_GenerujKarte)
#endif

SIBLING_EXPORT std::int32_t Run_EdytujKarte(std::int32_t cardID, Connection *database,
                                            Transaction *transaction)
{
    record("Run_EdytujKarte card=%d database=%p transaction=%p", cardID,
           static_cast<void *>(database), static_cast<void *>(transaction));
    return setting("HAULIX_TEST_SIBLING_RESULT", 1);
}
static_assert(std::is_same_v<decltype(&Run_EdytujKarte), SiblingRoadCardEntry>);

#define SIBLING_SCHEDULER(name)                                                                   \
    SIBLING_EXPORT std::int32_t name(std::int32_t userID, Connection *database,                   \
                                     Transaction *transaction, std::int32_t reserved)             \
    {                                                                                             \
        record(#name " user=%d database=%p transaction=%p reserved=%d", userID,                   \
               static_cast<void *>(database), static_cast<void *>(transaction), reserved);        \
        return 1;                                                                                 \
    }                                                                                             \
    static_assert(std::is_same_v<decltype(&name), SiblingSchedulerEntry>)

SIBLING_SCHEDULER(Run_Terminarz);
SIBLING_SCHEDULER(Run_PokazTerminy);
