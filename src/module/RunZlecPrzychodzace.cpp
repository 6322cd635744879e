#include "RunZlecPrzychodzace.h"

#include "QtMessageService.h"
#include "SessionContext.h"
#include "TfrmZlecPrzychodzace.h"

std::int32_t runZlecPrzychodzace(std::int32_t userID, Connection *database,
                                 Transaction *transaction)
{
    setSession(userID, database, transaction);
    // The module's boxes appear on the host's screen; a test that drives
    // this entry has installed its own service over this one.
    MessageServices::setProgramService(std::make_unique<QtMessageService>());
    // The host application owns the window, which for Qt means no parent.
    const auto form = TfrmRODefault::create<TfrmZlecPrzychodzace>(nullptr);
    return form->showModal();
}
