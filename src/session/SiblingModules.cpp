#include "SiblingModules.h"

#include "MessageService.h"
#include "SessionContext.h"
#include "SiblingEntryPoints.h"
#include "SiblingLibrary.h"

#include <QDir>

#include <cstdint>

static_assert(sizeof(int) == sizeof(std::int32_t), "siblings take keys as 32-bit integers");

namespace {

// Resolving is not calling: a library without the one entry a launcher
// calls is a broken installation, reported instead of jumping to nowhere.
template <class Entry>
Entry entryToCall(const SiblingLibrary &library, const QString &name)
{
    const QFunctionPointer entry = library.entry(name);
    if (!entry) {
        Messages::error(QStringLiteral("Biblioteka %1 nie udostępnia funkcji %2")
                            .arg(QDir::toNativeSeparators(library.path()), name));
    }
    return reinterpret_cast<Entry>(entry);
}

} // namespace

SiblingModules::SiblingModules(const QString &appPath, const SessionContext &context)
    : m_appPath(appPath), m_context(context)
{
}

QString SiblingModules::libraryName(Register which)
{
    switch (which) {
    case Register::Drivers: return QStringLiteral("Drivers");
    case Register::Places: return QStringLiteral("Places");
    case Register::Cities: return QStringLiteral("Cities");
    case Register::Vehicles: return QStringLiteral("Vehicles");
    case Register::Trailers: return QStringLiteral("Trailers");
    case Register::Contractors: return QStringLiteral("Contractors");
    }
    return QString();
}

QStringList SiblingModules::entryNames(Register which)
{
    switch (which) {
    case Register::Drivers:
        return {QStringLiteral("Run_WybierzKierowcy"), QStringLiteral("Run_Kierowcy"),
                QStringLiteral("Run_Mechanicy"), QStringLiteral("Run_WybierzMechanicy")};
    case Register::Places:
        return {QStringLiteral("Run_WybierzMiejsca"), QStringLiteral("Run_Miejsca")};
    case Register::Cities:
        return {QStringLiteral("Run_WybierzMiasta"), QStringLiteral("Run_Miasta")};
    case Register::Vehicles:
        return {QStringLiteral("Run_WybierzPojazd"), QStringLiteral("Run_Pojazdy")};
    case Register::Trailers:
        return {QStringLiteral("Run_WybierzNaczepy"), QStringLiteral("Run_Naczepy")};
    case Register::Contractors:
        return {QStringLiteral("Run_WybierzKontrahenci"), QStringLiteral("Run_Kontrahenci"),
                QStringLiteral("Run_AddKontrahenci"), QStringLiteral("Run_EditKontrahenci")};
    }
    return {};
}

int SiblingModules::select(Register which, int currentID, int &selectedID) const
{
    const QStringList names = entryNames(which);
    SiblingLibrary library(m_appPath, libraryName(which), names);
    if (!library.load())
        return 0;
    const auto run = entryToCall<SiblingSelectEntry>(library, names.first());
    if (!run)
        return 0;
    return run(m_context.UserID, currentID, m_context.Database, m_context.Transaction, &selectedID);
}

bool SiblingModules::editRoadCard(int cardID) const
{
    const QString name = QStringLiteral("Run_EdytujKarte");
    SiblingLibrary library(m_appPath, QStringLiteral("RoadCards"),
                           {name, QStringLiteral("Run_GenerujKarte")});
    if (!library.load())
        return false;
    const auto run = entryToCall<SiblingRoadCardEntry>(library, name);
    return run && run(cardID, m_context.Database, m_context.Transaction) != 0;
}

bool SiblingModules::showScheduler(SchedulerView view) const
{
    const QString name = view == SchedulerView::Calendar ? QStringLiteral("Run_Terminarz")
                                                         : QStringLiteral("Run_PokazTerminy");
    SiblingLibrary library(m_appPath, QStringLiteral("Scheduler"), {name});
    if (!library.load())
        return false;
    const auto run = entryToCall<SiblingSchedulerEntry>(library, name);
    if (!run)
        return false;
    run(m_context.UserID, m_context.Database, m_context.Transaction, 0);
    return true;
}
