#include "Connection.h"
#include "DemoSeeder.h"
#include "LVFrame.h"
#include "Schema.h"
#include "SessionContext.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TListView.h"
#include "TfrmAddEditKierowcy.h"
#include "TfrmKierowcy.h"
#include "Transaction.h"

#include <QApplication>
#include <QTemporaryDir>

namespace {

// The demo company every picture of the siblings shows, seeded once and
// kept until the application ends.
class SiblingsDemo : public QObject
{
public:
    explicit SiblingsDemo(QObject *parent) : QObject(parent)
    {
        const QString path = m_dir.filePath(QStringLiteral("siblings.fdb"));
        Schema::createDatabase(path);
        m_connection.open(path);
        DemoSeeder::Options options;
        options.orders = 30;
        DemoSeeder(m_connection, options).seed();
    }

    Connection &connection() { return m_connection; }
    Transaction &transaction() { return m_transaction; }

private:
    QTemporaryDir m_dir;
    Connection m_connection;
    Transaction m_transaction{m_connection};
};

SiblingsDemo &demo()
{
    static auto *company = new SiblingsDemo(QApplication::instance());
    return *company;
}

// Builds a form on the demo company's session, then puts the session back:
// the forms read their data when they are created.
template <class Make>
std::unique_ptr<QWidget> onDemo(Make make)
{
    const SessionContext previous = session();
    setSession(1, &demo().connection(), &demo().transaction());
    std::unique_ptr<QWidget> form = make();
    setSession(previous.UserID, previous.Database, previous.Transaction);
    return form;
}

template <class Register>
std::unique_ptr<QWidget> registerShot(int selectedRow)
{
    return onDemo([selectedRow] {
        auto form = TfrmRODefault::create<Register>(nullptr, TfrmRegister::Browse, 0);
        TListView *list = form->frameListView1->lvMain;
        list->setSelectedIndex(std::min(selectedRow, list->itemCount() - 1));
        return std::unique_ptr<QWidget>(std::move(form));
    });
}

template <class Editor>
std::unique_ptr<QWidget> editorShot(int key)
{
    return onDemo(
        [key] { return std::unique_ptr<QWidget>(TfrmRODefault::create<Editor>(nullptr, key)); });
}

} // namespace

void addSiblingShots(ShotBook &book)
{
    book.add(QStringLiteral("frmKierowcy"),
             [](ShotContext &) { return registerShot<TfrmKierowcy>(2); });
    book.add(QStringLiteral("frmAddEditKierowcy"),
             [](ShotContext &) { return editorShot<TfrmAddEditKierowcy>(3); });
}
