#include "TNumery_tabel_kursowObj.h"

const TableDescription<TNumery_tabel_kursowObj> &TNumery_tabel_kursowObj::description()
{
    using T = TNumery_tabel_kursowObj;
    static const TableDescription<T> d{
        {QStringLiteral("NUMERY_TABEL_KURSOW"), QStringLiteral("ID_NUM_TAB"), ErrorLogFile::Haulix, InsertWording::WithDo},
        &T::ID_NUM_TAB,
        {
            {QStringLiteral("NUMER"), &T::NUMER},
            {QStringLiteral("Z_DNIA"), &T::Z_DNIA},
        },
    };
    return d;
}
