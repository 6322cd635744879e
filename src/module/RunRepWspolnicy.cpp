#include "RunRepWspolnicy.h"

#include "QtMessageService.h"
#include "SessionContext.h"
#include "TfrmRepWspolnicy.h"

std::int32_t runRepWspolnicy(std::int32_t userID, Connection *database,
                             Transaction *transaction)
{
    setSession(userID, database, transaction);
    MessageServices::setProgramService(std::make_unique<QtMessageService>());
    // The host application owns the dialog and the preview: no parent.
    TfrmRepWspolnicy::run(nullptr);
    return 1;
}
