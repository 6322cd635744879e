// haulix-bench-invoicing: invoicing checked orders into one invoice
// (reading the orders, numbering under the series lock, the invoice, its
// position, the links and the remarks, one transaction) and the invoicing
// form's list of orders still to invoice. The dispatcher's dialogs are
// left out: what they take is the dispatcher's time.
//
//   haulix-bench-invoicing [--orders N] [--checked C] [--listed L] [--runs R]
//
// A temporary database is seeded with the demo company (N orders, 1,000
// unless told) and L orders of one client without an invoice, loaded
// within a month of today (10,000); C of them (500) go onto each invoice,
// which is removed again, untimed, before the next run.
#include "BenchTimer.h"
#include "Configuration.h"
#include "CountOptions.h"
#include "InvoiceDraft.h"
#include "InvoiceHeader.h"
#include "InvoiceRemoval.h"
#include "InvoiceableOrders.h"
#include "OffscreenProgram.h"
#include "OrderInvoicing.h"
#include "SeededDatabase.h"
#include "Statement.h"
#include "TListViewModel.h"
#include "TZlecenia_przychObj.h"
#include "Transaction.h"

#include <QTemporaryDir>

#include <cstdio>

namespace {

struct Arguments
{
    int orders = 1000;
    int checked = 500;
    int listed = 10000;
    int runs = 7;
};

int firstClient(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT MIN(ID_KONTRAHENTA) FROM KONTRAHENCI"));
    st.exec();
    return st.integer(0);
}

// Orders of the client spread over the two months around today.
std::vector<int> addFreeOrders(Connection &connection, int client, int count)
{
    Transaction transaction(connection);
    TransactionScope scope(transaction);
    TZlecenia_przychObj order(connection);
    std::vector<int> keys;
    const QDate today = QDate::currentDate();
    for (int i = 0; i < count; ++i) {
        order.NUMER = 500000 + i;
        order.DATA = DateTime::fromDate(today.addDays(i % 56 - 28));
        order.DOSTARCZENIE = DateTime::fromDate(today.addDays(i % 56 - 27));
        order.IDKONTRAHENTA = client;
        order.IDPRZEWOZNIK = client;
        order.IDMIASTO_OD = 1;
        order.IDMIASTO_DO = 2;
        order.STAWKA_RAZEM = i % 3 ? 1250.0 + i % 100 : 0.0;
        order.KWOTA = 980.5;
        order.Insert();
        keys.push_back(order.ID_ZLECENIA_PRZYCH);
    }
    scope.commit();
    return keys;
}

OrderInvoicing::Request requestFor(Connection &connection, const std::vector<int> &keys,
                                   int client)
{
    const int owner = Configuration(&connection).GetConfigInt(QStringLiteral("IDWłaściciela"));
    const InvoiceDraft draft = InvoiceDraft::of(connection, keys, owner);
    TFakturyObj record(connection);
    record.ID_KONTRAHENTA = client;
    record.OPIS_POZYCJI = draft.serviceName;
    record.DATA_SPRZEDAZY = draft.latestDelivery;
    InvoiceHeader::proposed(InvoiceHeaderChoices::load(connection), record, draft.ownFleet,
                            DateTime::today(), InvoiceHeader::storedPkwiu(connection))
        .applyTo(record);
    return {record, keys, draft.netTotal, false, QString(), 1};
}

} // namespace

int main(int argc, char **argv)
{
    const OffscreenProgram program(argc, argv);
    Arguments a;
    if (!parseCountOptions(program.arguments(), {{QStringLiteral("--orders"), &a.orders},
                                                 {QStringLiteral("--checked"), &a.checked},
                                                 {QStringLiteral("--listed"), &a.listed},
                                                 {QStringLiteral("--runs"), &a.runs}})
        || a.checked > a.listed) {
        std::fprintf(stderr, "Użycie: haulix-bench-invoicing [--orders N] [--checked C] "
                             "[--listed L] [--runs R]\n");
        return 2;
    }
    try {
        QTemporaryDir scratch;
        Connection connection;
        openSeededDatabase(connection, scratch.filePath(QStringLiteral("invoicing-bench.fdb")),
                           a.orders);
        const int client = firstClient(connection);
        const std::vector<int> free = addFreeOrders(connection, client, a.listed);
        const std::vector<int> checked(free.begin(), free.begin() + a.checked);
        std::printf("demo company with %d orders, %d more of one client to invoice, "
                    "%d per invoice, median of %d runs\n\n",
                    a.orders, a.listed, a.checked, a.runs);

        BenchTimer timer;
        Transaction transaction(connection);
        int invoice = 0;
        timer.measure(QStringLiteral("invoicing %1 checked orders").arg(a.checked),
                      [&] {
                          invoice = OrderInvoicing::issue(transaction,
                                                          requestFor(connection, checked, client))
                                        .key;
                      },
                      a.runs,
                      [&] {
                          if (invoice > 0)
                              InvoiceRemoval::remove(transaction, invoice);
                      });
        InvoiceRemoval::remove(transaction, invoice);

        const QDate today = QDate::currentDate();
        std::size_t rows = 0;
        timer.measure(QStringLiteral("selection list of %1 orders").arg(a.listed),
                      [&] {
                          TListViewModel model;
                          model.beginUpdate();
                          for (InvoiceableOrders::Row &row : InvoiceableOrders::read(
                                   connection, today.addMonths(-1), today.addMonths(1), client))
                              model.addRow(row.texts, row.key);
                          model.endUpdate();
                          rows = std::size_t(model.rows());
                      },
                      a.runs);
        std::printf("%-48s %10zu rows\n", "", rows);
        timer.print();
        return 0;
    } catch (const std::exception &error) {
        std::fprintf(stderr, "Błąd: %s\n", error.what());
        return 1;
    }
}
