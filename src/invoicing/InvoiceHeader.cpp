#include "InvoiceHeader.h"

#include "Configuration.h"
#include "RevenueAccounts.h"
#include "Statement.h"
#include "TFakturyObj.h"

namespace {

const QString PkwiuSetting = QStringLiteral("SwwkuExpZlecHaulix");

int keyIfHeld(const std::vector<InvoiceHeaderChoices::Item> &items, int key)
{
    return InvoiceHeaderChoices::holds(items, key) ? key : 0;
}

} // namespace

InvoiceHeader InvoiceHeader::proposed(const InvoiceHeaderChoices &choices,
                                      const TFakturyObj &record, bool ownFleet, DateTime today,
                                      QString pkwiu)
{
    InvoiceHeader header;
    header.documentKind = keyIfHeld(choices.documentKinds, DefaultDocumentKind);
    header.symbol = record.NUMER_ROZSZERZONY.left(SymbolLength);
    header.client = keyIfHeld(choices.clients, record.ID_KONTRAHENTA);
    header.issued = today;
    header.sold = record.DATA_SPRZEDAZY;
    header.paymentType = keyIfHeld(choices.paymentTypes, DefaultPaymentType);
    header.bankAccount = choices.defaultBankAccount;
    header.serviceName = record.OPIS_POZYCJI.left(ServiceNameLength);
    header.revenueAccount = RevenueAccounts::defaultIndex(ownFleet);
    header.pkwiu = std::move(pkwiu).left(PkwiuLength);
    return header;
}

QString InvoiceHeader::problem() const
{
    if (documentKind == 0)
        return QStringLiteral("Uzupełnij pole Rodzaj dokumentu.");
    if (bankAccount == 0)
        return QStringLiteral("Uzupełnij pole Konto.");
    if (paymentType == 0)
        return QStringLiteral("Uzupełnij pole Sposób zapłaty.");
    if (client == 0)
        return QStringLiteral("Uzupełnij pole Kontrahent.");
    return {};
}

void InvoiceHeader::applyTo(TFakturyObj &record) const
{
    record.ID_RODZAJ_DOK = documentKind;
    record.KONTO_BANKOWE = bankAccount;
    record.ID_RODZ_PLATNOSCI = paymentType;
    record.DZIAL = revenueAccount + 1;
    record.ID_REJESTR = revenueAccount + 1;
    record.NUMER_ROZSZERZONY = symbol;
    record.DATA_WYSTAWIENIA = issued;
    record.DATA_SPRZEDAZY = sold;
    record.ILOSC_DNI_PLATN = paymentDays;
    record.ODEBRAL = receiver;
    record.OPIS_POZYCJI = serviceName;
    record.ID_KONTRAHENTA = client;
}

void InvoiceHeader::storePkwiu(Connection &connection, const QString &code)
{
    Statement st(connection);
    st.add(QStringLiteral("UPDATE KONFIGURACJA set VALUE_STRING = :b"));
    st.add(QStringLiteral("WHERE POLE =:a "));
    st.bind(QStringLiteral("b"), code);
    st.bind(QStringLiteral("a"), PkwiuSetting);
    st.exec();
}

QString InvoiceHeader::storedPkwiu(Connection &connection)
{
    return Configuration(&connection).GetConfigString(PkwiuSetting);
}
