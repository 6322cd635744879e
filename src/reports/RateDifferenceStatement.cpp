#include "RateDifferenceStatement.h"

#include "Format.h"
#include "InvoiceLine.h"
#include "Statement.h"

#include <map>
#include <unordered_map>

namespace {

struct InvoiceNets
{
    double total = 0.0;
    std::unordered_map<int, double> byOrder;   // positions that name their order
    int orders = 0;
};

void addPeriod(Statement &st)
{
    st.add(QStringLiteral("WHERE f.DATA_WYSTAWIENIA BETWEEN :aOd AND :aDo "));
}

void bindPeriod(Statement &st, const ReportPeriod &period)
{
    st.bind(QStringLiteral("aOd"), period.start());
    st.bind(QStringLiteral("aDo"), period.end());
}

std::unordered_map<int, InvoiceNets> invoiceNets(Connection &connection,
                                                 const ReportPeriod &period)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT p.ID_FAKTURY, p.ID_ZLECENIA, p.ILOSC, p.CENA_NETTO, "));
    st.add(QStringLiteral("v.PROCENT FROM FAKTURY_POZYCJE p "));
    st.add(QStringLiteral("JOIN FAKTURY f ON f.ID_FAKTURY = p.ID_FAKTURY "));
    st.add(QStringLiteral("LEFT JOIN STAWKI_VAT v ON v.ID_STAWKI = p.ID_VAT "));
    addPeriod(st);
    bindPeriod(st, period);
    st.exec();
    std::unordered_map<int, InvoiceNets> nets;
    for (; !st.atEnd(); st.next()) {
        const double net = InvoiceLine::amounts(st.number(2), st.number(3), st.number(4)).net;
        InvoiceNets &invoice = nets[st.integer(0)];
        invoice.total += net;
        if (const int order = st.integer(1))
            invoice.byOrder[order] += net;
    }
    return nets;
}

double orderNet(const InvoiceNets &invoice, int order)
{
    const auto found = invoice.byOrder.find(order);
    if (found != invoice.byOrder.end())
        return found->second;
    return invoice.byOrder.empty() && invoice.orders == 1 ? invoice.total : 0.0;
}

} // namespace

StatementLayout RateDifferenceStatement::layout(const ReportPeriod &period)
{
    return {QStringLiteral("Faktury przewożnika i własne") + period.text(),
            QStringLiteral("Wykonawca"),
            {{"Zlecenie", 20},
             {"Przewoźnik", 40},
             {"Faktura", 34},
             {"Data wyst.", 22},
             {"Netto faktury", 30, StatementColumn::Money},
             {"Faktura przewoźnika", 38},
             {"Kwota przewoźnika", 30, StatementColumn::Money},
             {"Różnica", 30, StatementColumn::Money},
             {"Marża", 22, StatementColumn::Margin, Difference, CarrierAmount}},
            true,
            false};
}

StatementData RateDifferenceStatement::read(Connection &connection, const ReportPeriod &period,
                                            int ownCarrier, const Progress &progress)
{
    std::unordered_map<int, InvoiceNets> nets = invoiceNets(connection, period);
    struct Row
    {
        int key, number, invoice, carrier;
        QString carrierName, invoiceNumber, issued, carrierInvoice;
        double carrierAmount;
    };
    std::vector<Row> rows;
    {
        Statement st(connection);
        st.add(QStringLiteral("SELECT z.ID_ZLECENIA_PRZYCH, z.NUMER, z.IDFAKTURY, "));
        st.add(QStringLiteral("z.IDPRZEWOZNIK, p.SKROT, f.NUMER_PELNY, f.DATA_WYSTAWIENIA, "));
        st.add(QStringLiteral("z.NUMER_FAKT_PRZEW, z.KWOTA_FAKT_PRZEW FROM ZLECENIA_PRZYCH z "));
        st.add(QStringLiteral("JOIN FAKTURY f ON f.ID_FAKTURY = z.IDFAKTURY "));
        st.add(QStringLiteral("LEFT JOIN KONTRAHENCI p ON p.ID_KONTRAHENTA = z.IDPRZEWOZNIK "));
        addPeriod(st);
        st.add(QStringLiteral("ORDER BY f.DATA_WYSTAWIENIA, f.NR_KOLEJNY, z.NUMER"));
        bindPeriod(st, period);
        st.exec();
        for (; !st.atEnd(); st.next()) {
            rows.push_back({st.integer(0), st.integer(1), st.integer(2), st.integer(3),
                            st.string(4), st.string(5), Format::date(st.dateTime(6)),
                            st.string(7), st.number(8)});
            ++nets[rows.back().invoice].orders;
        }
    }
    std::map<int, std::vector<StatementLine>> parts;   // 1 outside carriers, 2 own fleet
    int done = 0;
    for (const Row &row : rows) {
        const bool own = row.carrier == ownCarrier && ownCarrier != 0;
        const double net = orderNet(nets[row.invoice], row.key);
        const int part = own ? 2 : 1;
        parts[part].push_back(
            {own ? OwnFleet : OutsideCarriers,
             {QString::number(row.number).rightJustified(8, u'0'), row.carrierName,
              row.invoiceNumber, row.issued, net, row.carrierInvoice, row.carrierAmount,
              net - row.carrierAmount, QVariant()},
             part});
        if (progress)
            progress(++done, int(rows.size()));
    }
    StatementData data;
    for (auto &[part, lines] : parts)
        data.lines.insert(data.lines.end(), lines.begin(), lines.end());
    return data;
}
