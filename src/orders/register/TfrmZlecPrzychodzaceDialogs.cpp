// The register's actions that open an order's own dialogs: the editor, the
// goods, the places and the day for the templates.
#include "TfrmZlecPrzychodzace.h"

#include "MessageService.h"
#include "OrderCopy.h"
#include "OrderPlaces.h"
#include "OrderTemplates.h"
#include "Privileges.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TMiejsca_zlecObj.h"
#include "TframeListView.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmAdresy.h"
#include "TfrmDataWzorca.h"
#include "TfrmTowaryNaZleceniu.h"

int TfrmZlecPrzychodzace::runEditor(int orderKey, int mode)
{
    const auto editor = TfrmRODefault::create<TfrmAddEditZlecenia_Przych>(this, orderKey, mode);
    return editor->showModal();
}

void TfrmZlecPrzychodzace::acDodajExecute()
{
    if (!Privileges::require(Privileges::Add, this))
        return;
    using Editor = TfrmAddEditZlecenia_Przych;
    const auto editor = TfrmRODefault::create<Editor>(this, 0, Editor::Add);
    if (editor->showModal() != mrOk)
        return;
    // The key the order's own insert got: the newest key of the table may
    // be another workstation's order by now.
    reloadAndSelect(editor->orderKey());
}

void TfrmZlecPrzychodzace::acPoprawExecute()
{
    const int key = selectedOrder();
    if (key == 0 || !Privileges::require(Privileges::Edit, this))
        return;
    if (runEditor(key, TfrmAddEditZlecenia_Przych::Edit) == mrOk)
        reloadAndSelect(key);
}

void TfrmZlecPrzychodzace::acPowielExecute()
{
    const int source = selectedOrder();
    if (source == 0 || !Privileges::require(Privileges::Add, this))
        return;
    if (!Messages::confirm(QStringLiteral("Kopiowaie zlecenia"),
                           QStringLiteral("Czy powielić wybraną pozycję?")))
        return;
    int copy = 0;
    reportFailures(QStringLiteral("Nie można powielić zlecenia"), [&] {
        copy = copyOrderWithPlacesAndGoods(*session().Database, session().transaction(), source);
    });
    if (copy == 0)
        return;
    // The copy is saved already; in the editor the dispatcher gives it its
    // own number and whatever else differs, so its answer changes nothing.
    runEditor(copy, TfrmAddEditZlecenia_Przych::Edit);
    reloadAndSelect(copy);
    frameListView1->lvMain->setFocus();
}

void TfrmZlecPrzychodzace::acWzorExecute()
{
    const auto prompt = TfrmRODefault::create<TfrmDataWzorca>(this);
    if (prompt->showModal() != mrOk)
        return;
    const QDate day = prompt->date();
    reportFailures(QStringLiteral("Nie można wstawić zleceń z wzorca"), [&] {
        Connection &database = *session().Database;
        if (OrderTemplates::ordersOnDay(database, day)
            && !Messages::confirm(QStringLiteral("Wzorzec"),
                                  QStringLiteral("Są już wysyłki na wybrany dzień. "
                                                 "Dodać wysyłki wzorcowe?")))
            return;
        OrderTemplates::insertForDay(database, session().transaction(), day);
    });
}

void TfrmZlecPrzychodzace::acTowaryExecute()
{
    const int key = selectedOrder();
    if (key == 0)
        return;
    const auto goods = TfrmRODefault::create<TfrmTowaryNaZleceniu>(this, key);
    goods->showModal();
}

void TfrmZlecPrzychodzace::openPlace(int type)
{
    const int key = selectedOrder();
    if (key == 0)
        return;
    TMiejsca_zlecObj place(*session().Database);
    reportFailures(QStringLiteral("Nie można przygotować miejsca zlecenia"), [&] {
        place = OrderPlaces::placeOf(*session().Database, key, type);
        if (place.ID_MIEJSCA_ZLEC != 0)
            place.Update();
    });
    // A place that could not be made has been reported by its table object;
    // there is nothing to open.
    if (place.ID_MIEJSCA_ZLEC == 0)
        return;
    const auto addresses = TfrmRODefault::create<TfrmAdresy>(this, place);
    addresses->showModal();
}
