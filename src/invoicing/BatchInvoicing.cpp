#include "BatchInvoicing.h"

#include "Configuration.h"
#include "InvoiceDraft.h"
#include "InvoiceHeader.h"
#include "InvoicingError.h"
#include "SessionContext.h"
#include "Statement.h"
#include "Transaction.h"

namespace BatchInvoicing {

std::vector<int> ordersToInvoice(Connection &connection, const Options &options)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH"));
    st.add(QStringLiteral("WHERE IDKONTRAHENTA=:aIDKONTRAHENTA"));
    st.add(QStringLiteral("AND DATA >= :aOd AND DATA < :aPo"));
    st.add(QStringLiteral("AND (IDFAKTURY IS NULL OR IDFAKTURY=0)"));
    st.add(QStringLiteral("ORDER BY DATA, ID_ZLECENIA_PRZYCH"));
    st.bind(QStringLiteral("aIDKONTRAHENTA"), options.client);
    st.bind(QStringLiteral("aOd"), DateTime::fromDate(options.from));
    st.bind(QStringLiteral("aPo"), DateTime::fromDate(options.to.addDays(1)));
    st.exec();
    std::vector<int> keys;
    for (; !st.atEnd(); st.next())
        keys.push_back(st.integer(0));
    return keys;
}

DateTime saleDate(Connection &connection, const std::vector<int> &orderKeys,
                  DateTime latestDelivery)
{
    if (!latestDelivery.isNull() || orderKeys.empty())
        return latestDelivery;
    Statement st(connection);
    st.add(QStringLiteral("SELECT MAX(DATA) AS DATA FROM ZLECENIA_PRZYCH"));
    st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH IN ("));
    QStringList keys;
    for (int key : orderKeys)
        keys << QString::number(key);
    st.add(keys.join(u',') + QLatin1Char(')'));
    st.exec();
    return st.dateTime(0);
}

std::optional<OrderInvoicing::Issued> run(Transaction &transaction, const Options &options)
{
    Connection &connection = transaction.connection();
    const std::vector<int> keys = ordersToInvoice(connection, options);
    if (keys.empty())
        return std::nullopt;
    const int ownerKey = Configuration(&connection).GetConfigInt(QStringLiteral("IDWłaściciela"));
    const InvoiceDraft draft = InvoiceDraft::of(connection, keys, ownerKey);

    TFakturyObj record(connection);
    record.ID_KONTRAHENTA = options.client;
    if (draft.ownFleet)
        record.NUMER_ROZSZERZONY = QStringLiteral(" ");
    record.OPIS_POZYCJI = draft.serviceName;
    record.DATA_SPRZEDAZY = saleDate(connection, keys, draft.latestDelivery);
    // As the dialog: proposed from the flag as it stood, then the flag
    // follows this invoicing.
    const InvoiceHeader header = InvoiceHeader::proposed(
        InvoiceHeaderChoices::load(connection), record, session().OwnFleet,
        DateTime::fromDate(options.issued), InvoiceHeader::storedPkwiu(connection));
    session().OwnFleet = draft.ownFleet;
    if (const QString problem = header.problem(); !problem.isEmpty())
        throw InvoicingError(problem);
    header.applyTo(record);

    OrderInvoicing::Request request{record, keys, draft.netTotal, options.bySaleDate,
                                    header.remarks, options.userId};
    return OrderInvoicing::issue(transaction, request);
}

} // namespace BatchInvoicing
