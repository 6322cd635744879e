#include "SiblingRegisters.h"

#include <array>

namespace {

struct Row
{
    const char *library;
    const char *entry;
};

constexpr std::array<Row, 8> Rows{{
    {"Drivers", "Run_Kierowcy"},
    {"Places", "Run_Miejsca"},
    {"Cities", "Run_Miasta"},
    {"Vehicles", "Run_Pojazdy"},
    {"Trailers", "Run_Naczepy"},
    {"Contractors", "Run_Kontrahenci"},
    {"RoadCards", "Run_KartyDrogowe"},
    {"Scheduler", "Run_Terminarz"},
}};

} // namespace

std::optional<SiblingRegister> SiblingRegister::named(const QString &library)
{
    for (const Row &row : Rows) {
        if (library.compare(QLatin1String(row.library), Qt::CaseInsensitive) == 0)
            return SiblingRegister{QLatin1String(row.library), QLatin1String(row.entry),
                                   QLatin1String(row.library) == QLatin1String("Scheduler")};
    }
    return std::nullopt;
}

QStringList SiblingRegister::libraries()
{
    QStringList names;
    for (const Row &row : Rows)
        names << QLatin1String(row.library);
    return names;
}
