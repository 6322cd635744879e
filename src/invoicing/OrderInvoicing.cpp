#include "OrderInvoicing.h"

#include "Configuration.h"
#include "DocumentNumber.h"
#include "InvoiceNumbering.h"
#include "InvoicingError.h"
#include "Statement.h"
#include "TFaktury_pozycjeObj.h"
#include "TZlecenia_przychObj.h"
#include "TableStatements.h"
#include "Transaction.h"

namespace OrderInvoicing {

namespace {

constexpr int DomesticCurrency = 24;
constexpr int OrdersRegister = 2;
constexpr int SalesDocument = 4;
constexpr int TransportService = 4;

struct Settings
{
    QString mask;
    int vatRate = 0;
    QString pkwiu;
};

Settings settingsOf(Connection &connection)
{
    const Configuration configuration(&connection);
    return {configuration.GetConfigString(QStringLiteral("MaskaNrFakturaVatZKraj")),
            configuration.GetConfigInt(QStringLiteral("VatKrajZlecSped")),
            configuration.GetConfigString(QStringLiteral("SwwkuExpZlecHaulix"))};
}

void insertPosition(Connection &connection, const TFakturyObj &invoice, double netTotal,
                    const Settings &settings)
{
    TFaktury_pozycjeObj position(connection);
    position.ID_FAKTURY = invoice.ID_FAKTURY;
    position.TRESC = invoice.OPIS_POZYCJI;
    position.ILOSC = 1;
    position.JM = QStringLiteral("Fracht");
    position.CENA_NETTO = netTotal;
    position.KWOTA_W_WALUCIE = netTotal;
    position.ID_VAT = settings.vatRate;
    position.SWWKU = settings.pkwiu;
    position.RODZAJ_USLUGI = TransportService;
    if (!position.Insert())
        throw InvoicingError();
}

// Only the invoice column is written, and only while the order is still
// free: a correction another workstation saved meanwhile stays, and an
// order it invoiced meanwhile is not invoiced twice.
void linkOrders(Connection &connection, int invoiceKey, const std::vector<int> &orderKeys)
{
    Statement st(connection);
    st.add(QStringLiteral("UPDATE ZLECENIA_PRZYCH SET IDFAKTURY=:aIDFAKTURY"));
    st.add(QStringLiteral("WHERE ID_ZLECENIA_PRZYCH=:aID_ZLECENIA_PRZYCH"));
    st.add(QStringLiteral("AND (IDFAKTURY IS NULL OR IDFAKTURY=0)"));
    for (int orderKey : orderKeys) {
        st.bind(QStringLiteral("aIDFAKTURY"), invoiceKey);
        st.bind(QStringLiteral("aID_ZLECENIA_PRZYCH"), orderKey);
        try {
            st.exec();
        } catch (const DbError &error) {
            // A newer transaction may see the change that conflicted.
            if (error.kind() == DbError::Kind::Conflict)
                throw;
            TableStatements::reportFailure(TableStatements::Operation::Update,
                                           TZlecenia_przychObj::description().info,
                                           error.message());
            throw InvoicingError();
        }
        if (st.rowsAffected() != 1)
            throw InvoicingError(
                QStringLiteral("Zlecenie o identyfikatorze %1 zostało w międzyczasie "
                               "zafakturowane albo usunięte na innym stanowisku. Faktury nie "
                               "wystawiono: odśwież listę zleceń i zaznacz je ponownie.")
                    .arg(orderKey));
    }
}

} // namespace

Issued issue(Transaction &transaction, const Request &request)
{
    Connection &connection = transaction.connection();
    const InvoiceNumbering::Settlement settlement{request.header.ID_RODZAJ_DOK,
                                                  request.header.DATA_WYSTAWIENIA,
                                                  request.header.DATA_SPRZEDAZY,
                                                  request.bySaleDate};
    return NumberingLock::run(transaction, InvoiceNumbering::series(settlement), [&] {
        // Read inside, so that a start over after a conflict sees what the
        // other workstation committed.
        const Settings settings = settingsOf(connection);
        TFakturyObj invoice = request.header;
        invoice.IDWALUTA = DomesticCurrency;
        invoice.NR_KOLEJNY = InvoiceNumbering::next(connection, settlement);
        invoice.ID_REJESTR = OrdersRegister;
        invoice.MASKA = settings.mask;
        invoice.NUMER_PELNY = DocumentNumber::format(settings.mask, invoice.NR_KOLEJNY,
                                                     invoice.NUMER_ROZSZERZONY,
                                                     settlement.date());
        invoice.GATUNEK_DOK_NADRZ = SalesDocument;
        invoice.ID_WYSTAWIL = request.userId;
        if (!invoice.Insert())
            throw InvoicingError();
        insertPosition(connection, invoice, request.netTotal, settings);
        linkOrders(connection, invoice.ID_FAKTURY, request.orderKeys);
        invoice.OPIS_POZYCJI = request.remarks;
        if (!invoice.Update())
            throw InvoicingError();
        return Issued{invoice.ID_FAKTURY, invoice.NR_KOLEJNY, invoice.NUMER_PELNY};
    });
}

} // namespace OrderInvoicing
