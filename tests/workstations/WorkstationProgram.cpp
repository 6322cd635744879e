// A second workstation for the tests: opens the database embedded, says
// "gotowy", waits for a line on its input and then does the same work as
// a dispatcher's workstation, printing what it got, one line per record:
//
//   haulix-test-workstation orders DATABASE COUNT NAME
//       adds COUNT orders through the order editor's saving; "key number"
//   haulix-test-workstation places DATABASE COUNT FIRST_ORDER
//       opens the loading place of the orders FIRST_ORDER, FIRST_ORDER + 1,
//       ... as the register does; "order place_key"
//   haulix-test-workstation invoices DATABASE COUNT CLIENT
//       invoices the client's orders of 2026-01-01, then of each following
//       day, COUNT days, one invoice a day issued 2026-03-02, as the batch
//       invoicing does; "invoice_key number"
//
// Exit status 0, or 1 with the reason on the standard error.
#include "BatchInvoicing.h"
#include "Connection.h"
#include "DbError.h"
#include "InvoicingError.h"
#include "OrderPlaces.h"
#include "OrderSaving.h"
#include "TMiejsca_zlecObj.h"
#include "TZlecenia_przychObj.h"
#include "Transaction.h"

#include <QCoreApplication>
#include <QDate>
#include <QTextStream>

#include <cstdio>

namespace {

void addOrders(Connection &connection, int count, const QString &name, QTextStream &out)
{
    Transaction transaction(connection);
    for (int i = 0; i < count; ++i) {
        TZlecenia_przychObj order(connection);
        order.DATA = DateTime::fromDate(QDate(2026, 6, 1 + i % 28));
        order.NUMER_OBCY = QStringLiteral("%1/%2").arg(name).arg(i);
        OrderSaving::save(transaction, order, true);
        out << order.ID_ZLECENIA_PRZYCH << ' ' << order.NUMER << '\n';
    }
}

void openPlaces(Connection &connection, int count, int firstOrder, QTextStream &out)
{
    for (int order = firstOrder; order < firstOrder + count; ++order) {
        TMiejsca_zlecObj place = OrderPlaces::placeOf(connection, order, OrderPlaces::Loading);
        if (place.ID_MIEJSCA_ZLEC == 0)
            throw DbError(QStringLiteral("Nie utworzono miejsca zlecenia %1").arg(order));
        // The register saves the record before its dialog opens.
        place.NAZWA1 = QString::number(order);
        place.Update();
        out << order << ' ' << place.ID_MIEJSCA_ZLEC << '\n';
    }
}

void issueInvoices(Connection &connection, int count, int client, QTextStream &out)
{
    Transaction transaction(connection);
    const QDate first(2026, 1, 1);
    for (int day = 0; day < count; ++day) {
        BatchInvoicing::Options options;
        options.client = client;
        options.from = options.to = first.addDays(day);
        options.issued = QDate(2026, 3, 2);
        const auto issued = BatchInvoicing::run(transaction, options);
        if (!issued)
            throw DbError(QStringLiteral("Brak zleceń z dnia %1").arg(day));
        out << issued->key << ' ' << issued->number << '\n';
    }
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    QTextStream err(stderr);
    const bool known = args.size() == 5
        && (args[1] == QLatin1String("orders") || args[1] == QLatin1String("places")
            || args[1] == QLatin1String("invoices"));
    if (!known) {
        err << "użycie: haulix-test-workstation orders|places|invoices BAZA ILE "
               "NAZWA|PIERWSZE|KONTRAHENT\n";
        return 2;
    }
    try {
        Connection connection;
        connection.open(args[2]);
        QTextStream out(stdout);
        out << "gotowy" << Qt::endl;
        QTextStream(stdin).readLine();
        const int count = args[3].toInt();
        if (args[1] == QLatin1String("orders"))
            addOrders(connection, count, args[4], out);
        else if (args[1] == QLatin1String("places"))
            openPlaces(connection, count, args[4].toInt(), out);
        else
            issueInvoices(connection, count, args[4].toInt(), out);
        out.flush();
    } catch (const DbError &error) {
        err << error.message() << '\n';
        return 1;
    } catch (const InvoicingError &error) {
        err << "Nie wystawiono faktury " << error.message() << '\n';
        return 1;
    }
    return 0;
}
