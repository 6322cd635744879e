#include "Connection.h"
#include "DemoSeeder.h"
#include "Schema.h"
#include "SessionContext.h"
#include "ShotBook.h"
#include "ShotDatabase.h"
#include "Shots.h"
#include "TframeListView.h"
#include "TfrmAdvancedEdit.h"
#include "TfrmZlecPrzychodzace.h"
#include "Transaction.h"

#include <QObject>
#include <QTemporaryDir>

namespace {

// A seeded demo company for the register's picture. It belongs to the form
// it serves and puts the session back as it found it when the form goes.
class DemoCompany : public QObject
{
public:
    DemoCompany() : m_previous(session())
    {
        const QString path = m_dir.filePath(QStringLiteral("register.fdb"));
        Schema::createDatabase(path, Schema::ForcedWrites::Off);
        m_connection.open(path);
        DemoSeeder::Options options;
        options.orders = 120;
        DemoSeeder(m_connection, options).seed();
        setSession(1, &m_connection, &m_transaction);
    }
    ~DemoCompany() override
    {
        setSession(m_previous.UserID, m_previous.Database, m_previous.Transaction);
    }

private:
    SessionContext m_previous;
    QTemporaryDir m_dir;
    Connection m_connection;
    Transaction m_transaction{m_connection};
};

std::unique_ptr<QWidget> incomingOrders()
{
    auto company = std::make_unique<DemoCompany>();
    auto form = TfrmRODefault::create<TfrmZlecPrzychodzace>();
    company.release()->setParent(form.get());
    TListView *list = form->frameListView1->lvMain;
    list->setSelectedIndex(std::min(5, list->itemCount() - 1));
    return form;
}

} // namespace

void addRegisterShots(ShotBook &book)
{
    book.add(QStringLiteral("frmZlecPrzychodzace"),
             [](ShotContext &) { return incomingOrders(); });
    // The narrowest the window goes: the search box must stay usable.
    book.add(QStringLiteral("frmZlecPrzychodzace-minimum"), [](ShotContext &) {
        std::unique_ptr<QWidget> form = incomingOrders();
        form->resize(form->minimumWidth(), form->height());
        return form;
    });
    book.add(
        QStringLiteral("frmAdvancedEdit"), [](ShotContext &context) -> std::unique_ptr<QWidget> {
            return TfrmRODefault::create<TfrmAdvancedEdit>(nullptr, context.database().orderKey());
        });
}
