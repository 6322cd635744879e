#include "InvoiceRemoval.h"

#include "InvoicingError.h"
#include "MessageService.h"
#include "Statement.h"
#include "TFakturyObj.h"
#include "Transaction.h"

namespace InvoiceRemoval {

namespace {

constexpr int InvoiceAdministrator = 1;

void run(Connection &connection, const QString &sql, int invoiceKey)
{
    Statement st(connection);
    st.add(sql);
    st.bind(QStringLiteral("aIdfaktury"), invoiceKey);
    st.exec();
}

} // namespace

bool allowed(int userId)
{
    if (userId == InvoiceAdministrator)
        return true;
    MessageServices::instance().showMessage(QStringLiteral("Brak uprawnień do usuwania "));
    return false;
}

void remove(Transaction &transaction, int invoiceKey)
{
    Connection &connection = transaction.connection();
    TransactionScope::retrying(transaction, [&] {
        run(connection, QStringLiteral("delete from faktury_pozycje where id_faktury=:aIdfaktury"),
            invoiceKey);
        run(connection,
            QStringLiteral("update Zlecenia_przych set idfaktury=0 where idfaktury=:aIdfaktury"),
            invoiceKey);
        TFakturyObj invoice(connection);
        invoice.ID_FAKTURY = invoiceKey;
        if (!invoice.Delete())
            throw InvoicingError();
    });
}

} // namespace InvoiceRemoval
