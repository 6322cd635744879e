#include "Connection.h"
#include "DemoSeeder.h"
#include "Schema.h"
#include "SessionContext.h"
#include "ShotBook.h"
#include "Shots.h"
#include "Statement.h"
#include "TMiejsca_zlecObj.h"
#include "TTowaryObj.h"
#include "TfrmAddEditTowaryNaZleceniu.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmAdresy.h"
#include "TfrmDataWzorca.h"
#include "TfrmTowaryNaZleceniu.h"
#include "Transaction.h"

#include <QTemporaryDir>

#include <memory>

namespace {

// A small demo company, seeded on the first shot that needs it and set as
// the session's database for each of them.
class DemoCompany
{
public:
    ~DemoCompany()
    {
        if (m_connection) {
            setSession(0, nullptr, nullptr);
            m_connection->close();
        }
    }

    Connection &use()
    {
        if (!m_connection) {
            const QString path = m_dir.filePath(QStringLiteral("orders-shots.fdb"));
            Schema::createDatabase(path, Schema::ForcedWrites::Off);
            m_connection = std::make_unique<Connection>();
            m_connection->open(path);
            m_transaction = std::make_unique<Transaction>(*m_connection);
            DemoSeeder::Options options;
            options.orders = 40;
            DemoSeeder(*m_connection, options).seed();
        }
        setSession(1, m_connection.get(), m_transaction.get());
        return *m_connection;
    }

    // An order of the demo with a via city, goods and places.
    int orderKey()
    {
        Statement st(use());
        st.add(QStringLiteral("SELECT MAX(z.ID_ZLECENIA_PRZYCH) FROM ZLECENIA_PRZYCH z "
                              "WHERE z.DATA IS NOT NULL AND EXISTS (SELECT 1 FROM TOWARY t "
                              "WHERE t.ID_ZLECENIA = z.ID_ZLECENIA_PRZYCH)"));
        st.exec();
        return st.integer(0);
    }

private:
    QTemporaryDir m_dir;
    std::unique_ptr<Connection> m_connection;
    std::unique_ptr<Transaction> m_transaction;
};

} // namespace

void addOrdersShots(ShotBook &book)
{
    auto demo = std::make_shared<DemoCompany>();
    book.add(QStringLiteral("frmAddEditZlecenia_Przych"), [demo](ShotContext &) {
        return TfrmRODefault::create<TfrmAddEditZlecenia_Przych>(
            nullptr, demo->orderKey(), TfrmAddEditZlecenia_Przych::Edit);
    });
    book.add(QStringLiteral("frmAddEditZlecenia_Przych-nowe"), [demo](ShotContext &) {
        demo->use();
        return TfrmRODefault::create<TfrmAddEditZlecenia_Przych>(
            nullptr, 0, TfrmAddEditZlecenia_Przych::Add);
    });
    book.add(QStringLiteral("frmTowaryNaZleceniu"), [demo](ShotContext &) {
        return TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, demo->orderKey());
    });
    book.add(QStringLiteral("frmAddEditTowaryNaZleceniu"), [demo](ShotContext &) {
        const int order = demo->orderKey();
        const auto goods = TTowaryObj(demo->use())
                               .SelectWhere(QStringLiteral("ID_ZLECENIA"), opEqual, order);
        return TfrmRODefault::create<TfrmAddEditTowaryNaZleceniu>(
            nullptr, goods.front(), TfrmAddEditTowaryNaZleceniu::Edit);
    });
    book.add(QStringLiteral("frmAdresy"), [demo](ShotContext &) {
        const int order = demo->orderKey();
        const auto places = TMiejsca_zlecObj(demo->use())
                                .SelectClause(QStringLiteral("where ID_ZLECENIA=%1 AND ID_ZRP=1")
                                                  .arg(order));
        return TfrmRODefault::create<TfrmAdresy>(nullptr, places.front());
    });
    book.add(QStringLiteral("frmDataWzorca"),
             [](ShotContext &) { return TfrmRODefault::create<TfrmDataWzorca>(); });
}
