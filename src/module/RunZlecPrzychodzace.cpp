#include "RunZlecPrzychodzace.h"

#include "SessionContext.h"
#include "ZlecPrzychodzace.h"

std::int32_t runZlecPrzychodzace(std::int32_t userID, Connection *database,
                                 Transaction *transaction)
{
    setSession(userID, database, transaction);
    // The host application owns the window, which for Qt means no parent.
    const auto form = TfrmRODefault::create<TfrmZlecPrzychodzace>(nullptr);
    return form->showModal();
}
