#include "UserInvoiceStatement.h"

#include "Format.h"
#include "GroupedLines.h"
#include "InvoiceLine.h"
#include "Statement.h"

#include <unordered_map>

namespace {

// The invoices' condition, for the invoices and for their positions alike.
void addCondition(Statement &st, int user)
{
    st.add(QStringLiteral("WHERE f.ID_RODZAJ_DOK = :aRodzaj "));
    st.add(QStringLiteral("AND f.DATA_WYSTAWIENIA BETWEEN :aOd AND :aDo "));
    if (user != 0)
        st.add(QStringLiteral("AND f.ID_WYSTAWIL = :aIdUser "));
}

void bindCondition(Statement &st, const ReportPeriod &period, int user)
{
    st.bind(QStringLiteral("aRodzaj"), UserInvoiceStatement::DomesticInvoice);
    st.bind(QStringLiteral("aOd"), period.start());
    st.bind(QStringLiteral("aDo"), period.end());
    if (user != 0)
        st.bind(QStringLiteral("aIdUser"), user);
}

std::unordered_map<int, VatAmounts> invoiceAmounts(Connection &connection,
                                                   const ReportPeriod &period, int user)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT p.ID_FAKTURY, p.ILOSC, p.CENA_NETTO, v.PROCENT "));
    st.add(QStringLiteral("FROM FAKTURY_POZYCJE p "));
    st.add(QStringLiteral("JOIN FAKTURY f ON f.ID_FAKTURY = p.ID_FAKTURY "));
    st.add(QStringLiteral("LEFT JOIN STAWKI_VAT v ON v.ID_STAWKI = p.ID_VAT "));
    addCondition(st, user);
    bindCondition(st, period, user);
    st.exec();
    std::unordered_map<int, VatAmounts> amounts;
    for (; !st.atEnd(); st.next()) {
        const VatAmounts line = InvoiceLine::amounts(st.number(1), st.number(2), st.number(3));
        VatAmounts &invoice = amounts[st.integer(0)];
        invoice.net += line.net;
        invoice.vat += line.vat;
        invoice.gross += line.gross;
    }
    return amounts;
}

} // namespace

StatementLayout UserInvoiceStatement::layout(const ReportPeriod &period)
{
    return {QStringLiteral("Zestawienie faktur na spedytora\\dysponenta") + period.text(),
            QStringLiteral("Wystawił"),
            {{"Numer faktury", 34},
             {"Data wyst.", 22},
             {"Kontrahent", 56},
             {"Netto", 26, StatementColumn::Money},
             {"VAT", 26, StatementColumn::Money},
             {"Brutto", 26, StatementColumn::Money}},
            false,
            false};
}

StatementData UserInvoiceStatement::read(Connection &connection, const ReportPeriod &period,
                                         int user)
{
    const std::unordered_map<int, VatAmounts> amounts = invoiceAmounts(connection, period, user);
    Statement st(connection);
    st.add(QStringLiteral("SELECT f.ID_FAKTURY, f.NUMER_PELNY, f.DATA_WYSTAWIENIA, "));
    st.add(QStringLiteral("f.ID_WYSTAWIL, u.LOGIN, k.SKROT "));
    st.add(QStringLiteral("FROM FAKTURY f "));
    st.add(QStringLiteral("LEFT JOIN USERS u ON u.ID_USER = f.ID_WYSTAWIL "));
    st.add(QStringLiteral("LEFT JOIN KONTRAHENCI k ON k.ID_KONTRAHENTA = f.ID_KONTRAHENTA "));
    addCondition(st, user);
    st.add(QStringLiteral("ORDER BY f.DATA_WYSTAWIENIA, f.NR_KOLEJNY, f.ID_FAKTURY"));
    bindCondition(st, period, user);
    st.exec();
    GroupedLines groups;
    for (; !st.atEnd(); st.next()) {
        const auto found = amounts.find(st.integer(0));
        const VatAmounts invoice = found == amounts.end() ? VatAmounts{} : found->second;
        const QString login = st.string(4);
        groups.add(st.integer(3), login.isEmpty() ? StatementTable::NoUser : login,
                   0.0,
                   {st.string(1), Format::date(st.dateTime(2)), st.string(5), invoice.net,
                    invoice.vat, invoice.gross});
    }
    return {groups.byTitle(), {}};
}
