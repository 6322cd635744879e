// The register's actions around the carriers: road cards, the carrier's
// invoice of an order and the statements menu with the carriers' lists.
#include "TfrmZlecPrzychodzace.h"

#include "CarrierInvoice.h"
#include "IssuedInvoicesStatement.h"
#include "MessageService.h"
#include "OrderListColumns.h"
#include "OrderRoadCard.h"
#include "Privileges.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TDaneFirmy.h"
#include "TFrmNiezaplaconeList.h"
#include "TVzlecenia_przychObj.h"
#include "TframeListView.h"
#include "TfrmFaktPrzew.h"
#include "TfrmKartaDrogowa.h"
#include "TfrmRepWspolnicy.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmWybierzDatyAndUsera1.h"
#include "TfrmWyborKontrachentDaty.h"
#include "TfrmWyborKontrachentDaty1.h"
#include "TfrmWydrukiPrzewoz.h"
#include "TfrmZestawienieRoznicStawek2.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>

#include <functional>
#include <optional>

namespace {

const QString GoneText = QStringLiteral(
    "Zlecenia nie ma już w bazie: mogło zostać usunięte na innym stanowisku.");

void tellOrderGone(const QString &caption)
{
    Messages::inform(caption, GoneText, MessageService::Icon::Warning);
}

// The client or carrier of an order as the view names them; 0 for no order.
int contractorOf(int orderKey, int TVzlecenia_przychObj::*contractor)
{
    Connection *database = session().Database;
    if (orderKey == 0 || !database)
        return 0;
    return TVzlecenia_przychObj(*database).SelectById(orderKey).*contractor;
}

} // namespace

void TfrmZlecPrzychodzace::buildStatementsMenu()
{
    pmZestaw = new QMenu(this);
    pmZestaw->setObjectName(QStringLiteral("pmZestaw"));
    // The entries keep the places they have always had in this menu; the
    // statements not listed here are not part of the module yet.
    const auto carrierList = [this](CarrierInvoiceList::Mode mode) {
        const auto list = TfrmRODefault::create<TfrmWydrukiPrzewoz>(this, selectedCarrier(), mode);
        list->showModal();
    };
    const auto userStatement = [this](TfrmWybierzDatyAndUsera1::Kind kind) {
        TfrmRODefault::create<TfrmWybierzDatyAndUsera1>(this, kind, session().UserID)->showModal();
    };
    struct Entry
    {
        const char *caption;
        std::function<void()> run;
        bool visible = true;
    };
    const Entry entries[] = {
        {"Wystawione faktury", [this] { IssuedInvoicesStatement::run(this); }},
        {"Kwoty dla kontrahenta - przychód, zysk",
         [this] {
             TfrmRODefault::create<TfrmWyborKontrachentDaty>(this, selectedClient())->showModal();
         }},
        {"Kwota stawki  na przewoźnika - koszt ",
         [this] {
             TfrmRODefault::create<TfrmWyborKontrachentDaty1>(this, selectedCarrier())
                 ->showModal();
         }},
        {"Faktury przewożnika niezapłacone", [=] { carrierList(CarrierInvoiceList::Unpaid); }},
        {"Faktury przewoźnika zapłacone", [=] { carrierList(CarrierInvoiceList::Paid); }},
        {"Zestawienie faktur przewoźników", [=] { carrierList(CarrierInvoiceList::Issued); }},
        {"Płatność - przewoźnicy",
         [this] {
             if (Connection *database = session().Database)
                 TFrmNiezaplaconeList(*database).Preview();
         }},
        {"Faktury przewożnika i własne", [this] { rateDifferences(); }},
        // Hidden, as it has always been: the partners report has its own
        // entry point.
        {"Zlecenia w/g spedytora kraj-zagranica", [this] { TfrmRepWspolnicy::run(this); }, false},
        {"Zestawienie na kraj  stawka/spedytor",
         [=] { userStatement(TfrmWybierzDatyAndUsera1::Rates); }},
        {"Zestawienie na kraj faktura/spedytor",
         [=] { userStatement(TfrmWybierzDatyAndUsera1::Invoices); }},
        {"Faktura Obca\\zapłata..",
         [=] { userStatement(TfrmWybierzDatyAndUsera1::CarrierInvoices); }},
    };
    for (const Entry &entry : entries) {
        QAction *action = pmZestaw->addAction(QString::fromUtf8(entry.caption));
        action->setVisible(entry.visible);
        connect(action, &QAction::triggered, this, entry.run);
    }
}

void TfrmZlecPrzychodzace::rateDifferences()
{
    const auto dialog = TfrmRODefault::create<TfrmWybierzDatyAndKontrahenta>(this);
    // The statement shows the outside carriers and the own fleet apart,
    // so there is no executor to choose.
    dialog->cbWlasny->hide();
    Connection *database = session().Database;
    if (dialog->showModal() != mrOk || !database)
        return;
    TfrmZestawienieRoznicStawek2 statement(*database, {dialog->from(), dialog->to()});
    if (dialog->previewFirst())
        statement.Preview();
    else
        statement.Print();
}

void TfrmZlecPrzychodzace::acZestawienieExecute()
{
    TListView *list = frameListView1->lvMain;
    pmZestaw->popup(list->mapToGlobal(list->rect().topLeft()));
}

int TfrmZlecPrzychodzace::selectedCarrier() const
{
    return contractorOf(selectedOrder(), &TVzlecenia_przychObj::IDPRZEWOZNIK);
}

int TfrmZlecPrzychodzace::selectedClient() const
{
    return contractorOf(selectedOrder(), &TVzlecenia_przychObj::IDKONTRAHENT);
}

void TfrmZlecPrzychodzace::acKartaExecute()
{
    const int key = selectedOrder();
    if (key == 0 || !m_kartaZeZlecen)
        return;
    const int choice = TfrmKartaDrogowa::choose(this);
    if (choice == TfrmKartaDrogowa::Cancelled)
        return;
    if (choice == TfrmKartaDrogowa::NewCard) {
        // A new card is made in the road-card module itself; here the
        // dispatcher only learns whether the right to it is there.
        Privileges::require(Privileges::Edit, this);
        return;
    }
    if (!TDaneFirmy().EditRoadCard(choice))
        return;
    bool assigned = false;
    if (!reportFailures(QStringLiteral("Nie można zapisać karty drogowej w zleceniu"), [&] {
            assigned = OrderRoadCard::assign(*session().Database, key, choice);
        }))
        return;
    if (!assigned) {
        tellOrderGone(QStringLiteral("Karta drogowa"));
        return;
    }
    // The list is not read again; the order's row shows its card at once.
    TListView *list = frameListView1->lvMain;
    const int row = list->findByKey(key);
    if (row >= 0)
        list->items().setText(row, OrderListColumns::NrKarty,
                              QStringLiteral("%1").arg(choice, 5, 10, QLatin1Char('0')));
}

void TfrmZlecPrzychodzace::BtnFakturaObcaClick()
{
    const int key = selectedOrder();
    Connection *database = session().Database;
    if (key == 0 || !database)
        return;
    std::optional<CarrierInvoice> invoice;
    if (!reportFailures(QStringLiteral("Nie można odczytać faktury przewoźnika"),
                        [&] { invoice = CarrierInvoice::load(*database, key); }))
        return;
    if (!invoice) {
        tellOrderGone(QStringLiteral("Faktura przewoźnika"));
        reloadAndSelect(key);
        return;
    }
    const auto dialog = TfrmRODefault::create<TfrmFaktPrzew>(this, key, *invoice);
    dialog->showModal();
    reloadAndSelect(key);
}
