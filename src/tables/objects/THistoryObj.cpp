#include "THistoryObj.h"

const TableDescription<THistoryObj> &THistoryObj::description()
{
    using T = THistoryObj;
    static const TableDescription<T> d{
        {QStringLiteral("HISTORY"), QStringLiteral("ID_HISTORY"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_HISTORY,
        {
            {QStringLiteral("USERID"), &T::USERID},
            {QStringLiteral("CZAS"), &T::CZAS},
            {QStringLiteral("COMPNAME"), &T::COMPNAME},
            {QStringLiteral("COMPUSER"), &T::COMPUSER},
            {QStringLiteral("OPERACJA"), &T::OPERACJA},
            {QStringLiteral("GRUPA"), &T::GRUPA},
            {QStringLiteral("HISTORY_PARAMS"), &T::HISTORY_PARAMS},
        },
    };
    return d;
}
