#include "RoadCardEntries.h"

#include "RecordReader.h"
#include "SiblingRun.h"
#include "TfrmAddEditKartyDrogowe.h"
#include "TKarty_drObj.h"
#include "TZlecenia_przychObj.h"

namespace {

const QString Caption = QStringLiteral("Karta drogowa");

} // namespace

std::int32_t RoadCardEntries::editCard(std::int32_t cardID, Connection *database,
                                       Transaction *transaction)
{
    setSession(0, database, transaction);
    if (!database)
        return 0;
    return SiblingRun::guarded(0, [&] {
        const auto editor = TfrmRODefault::create<TfrmAddEditKartyDrogowe>(nullptr, cardID);
        if (!editor->found()) {
            Messages::inform(Caption,
                             QStringLiteral("Nie ma karty drogowej o identyfikatorze %1: mogła "
                                            "zostać usunięta na innym stanowisku.")
                                 .arg(cardID),
                             MessageService::Icon::Warning);
            return std::int32_t(0);
        }
        return std::int32_t(editor->showModal() == TfrmRODefault::mrOk ? 1 : 0);
    });
}

std::int32_t RoadCardEntries::generateCard(std::int32_t orderID, Connection *database,
                                           Transaction *transaction)
{
    setSession(0, database, transaction);
    if (!database)
        return 0;
    return SiblingRun::guarded(0, [&] {
        const TZlecenia_przychObj order = recordByKey<TZlecenia_przychObj>(*database, orderID);
        if (order.ID_ZLECENIA_PRZYCH == 0) {
            Messages::inform(Caption,
                             QStringLiteral("Nie ma zlecenia o identyfikatorze %1: mogło zostać "
                                            "usunięte na innym stanowisku.")
                                 .arg(orderID),
                             MessageService::Icon::Warning);
            return std::int32_t(0);
        }
        // A card the order points at but that is gone gives way to a new one.
        const bool hasCard = order.IDKARTYDR != 0
            && recordByKey<TKarty_drObj>(*database, order.IDKARTYDR).ID_KARTY_DR != 0;
        const auto editor = TfrmRODefault::create<TfrmAddEditKartyDrogowe>(
            nullptr, hasCard ? order.IDKARTYDR : 0, orderID);
        if (editor->showModal() != TfrmRODefault::mrOk)
            return std::int32_t(0);
        return std::int32_t(editor->savedKey());
    });
}
