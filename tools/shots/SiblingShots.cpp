#include "Connection.h"
#include "DemoSeeder.h"
#include "TframeListView.h"
#include "Schema.h"
#include "SessionContext.h"
#include "ShotBook.h"
#include "Shots.h"
#include "TListView.h"
#include "TfrmAddEditKartyDrogowe.h"
#include "TfrmAddEditKierowcy.h"
#include "TfrmAddEditKontrahenci.h"
#include "TfrmAddEditMiejsca.h"
#include "TfrmAddEditMiejscowosci.h"
#include "TfrmAddEditNaczepy.h"
#include "TfrmAddEditPojazdy.h"
#include "TfrmAddEditTerminy.h"
#include "TfrmKartyDrogowe.h"
#include "TfrmKierowcy.h"
#include "TfrmKontrahenci.h"
#include "TfrmMiejsca.h"
#include "TfrmMiejscowosci.h"
#include "TfrmNaczepy.h"
#include "TfrmPojazdy.h"
#include "TfrmPokazTerminy.h"
#include "TfrmTerminarz.h"
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
        Schema::createDatabase(path, Schema::ForcedWrites::Off);
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
    const auto add = [&](const char *name, std::function<std::unique_ptr<QWidget>()> make) {
        book.add(QLatin1String(name), [make](ShotContext &) { return make(); });
    };
    add("frmKierowcy", [] { return registerShot<TfrmKierowcy>(2); });
    add("frmAddEditKierowcy", [] { return editorShot<TfrmAddEditKierowcy>(3); });
    add("frmMechanicy", [] { return registerShot<TfrmMechanicy>(0); });
    add("frmKontrahenci", [] { return registerShot<TfrmKontrahenci>(4); });
    add("frmAddEditKontrahenci", [] { return editorShot<TfrmAddEditKontrahenci>(3); });
    add("frmPojazdy", [] { return registerShot<TfrmPojazdy>(1); });
    add("frmAddEditPojazdy", [] { return editorShot<TfrmAddEditPojazdy>(1); });
    add("frmNaczepy", [] { return registerShot<TfrmNaczepy>(1); });
    add("frmAddEditNaczepy", [] { return editorShot<TfrmAddEditNaczepy>(2); });
    add("frmMiejsca", [] { return registerShot<TfrmMiejsca>(3); });
    add("frmAddEditMiejsca", [] { return editorShot<TfrmAddEditMiejsca>(19); });
    add("frmMiejscowosci", [] { return registerShot<TfrmMiejscowosci>(5); });
    add("frmAddEditMiejscowosci", [] { return editorShot<TfrmAddEditMiejscowosci>(2); });
    add("frmKartyDrogowe", [] { return registerShot<TfrmKartyDrogowe>(3); });
    add("frmAddEditKartyDrogowe", [] { return editorShot<TfrmAddEditKartyDrogowe>(1); });
    add("frmTerminarz", [] { return registerShot<TfrmTerminarz>(1); });
    add("frmPokazTerminy", [] { return registerShot<TfrmPokazTerminy>(0); });
    add("frmAddEditTerminy", [] {
        return onDemo([] {
            return std::unique_ptr<QWidget>(
                TfrmRODefault::create<TfrmAddEditTerminy>(nullptr, 3, QDate::currentDate()));
        });
    });
}
