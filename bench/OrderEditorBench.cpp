#include "OrderEditorBench.h"

#include "BenchTimer.h"
#include "Connection.h"
#include "DemoSeeder.h"
#include "Schema.h"
#include "SessionContext.h"
#include "Statement.h"
#include "TBitBtn.h"
#include "TfrmAddEditZlecenia_Przych.h"
#include "TfrmTowaryNaZleceniu.h"
#include "Transaction.h"

#include <QElapsedTimer>
#include <QTemporaryDir>

#include <cstdio>

namespace {

using Editor = TfrmAddEditZlecenia_Przych;

int newestOrder(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT MAX(ID_ZLECENIA_PRZYCH) FROM ZLECENIA_PRZYCH "
                          "WHERE DATA IS NOT NULL"));
    st.exec();
    return st.integer(0);
}

} // namespace

void benchOrderEditor(BenchTimer &timer, int orders)
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("editor-bench.fdb"));
    Schema::createDatabase(path);
    Connection connection;
    connection.open(path);
    DemoSeeder::Options options;
    options.orders = orders;
    QElapsedTimer seeding;
    seeding.start();
    DemoSeeder(connection, options).seed();
    timer.note(QStringLiteral("seed demo company, %1 orders").arg(orders),
               double(seeding.elapsed()));
    Transaction transaction(connection);
    setSession(1, &connection, &transaction);
    const int order = newestOrder(connection);

    timer.measure(QStringLiteral("order editor: open to add"), [] {
        TfrmRODefault::create<Editor>(nullptr, 0, Editor::Add);
    });
    timer.measure(QStringLiteral("order editor: open to correct"), [&] {
        TfrmRODefault::create<Editor>(nullptr, order, Editor::Edit);
    });
    std::unique_ptr<Editor> editor;
    timer.measure(
        QStringLiteral("order editor: save a correction"), [&] { editor->btnOk->click(); }, 5,
        [&] { editor = TfrmRODefault::create<Editor>(nullptr, order, Editor::Edit); });
    timer.measure(QStringLiteral("goods of an order: open"), [&] {
        TfrmRODefault::create<TfrmTowaryNaZleceniu>(nullptr, order);
    });
    editor.reset();
    setSession(0, nullptr, nullptr);
    connection.close();
}
