#include "InvoiceHeaderChoices.h"

#include "TDokumentyObj.h"
#include "TKonta_bankoweObj.h"
#include "TKontrahenciObj.h"
#include "TRodzaje_platnosciObj.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

namespace {

void sortByText(std::vector<InvoiceHeaderChoices::Item> &items)
{
    QCollator polish{QLocale(QLocale::Polish, QLocale::Poland)};
    std::stable_sort(items.begin(), items.end(), [&polish](const auto &a, const auto &b) {
        return polish.compare(a.text, b.text) < 0;
    });
}

template <class Record, class Text>
std::vector<InvoiceHeaderChoices::Item> itemsOf(const std::vector<Record> &records,
                                                int Record::*key, Text text)
{
    std::vector<InvoiceHeaderChoices::Item> items;
    items.reserve(records.size());
    for (const Record &record : records)
        items.push_back({record.*key, text(record)});
    return items;
}

// The table objects report a failed select themselves and hand back an
// empty list; the dialog then offers nothing and says what is missing.
template <class Object>
auto all(Connection &connection)
{
    return Object(connection).SelectAll();
}

} // namespace

InvoiceHeaderChoices InvoiceHeaderChoices::load(Connection &connection)
{
    InvoiceHeaderChoices choices;
    std::vector<TDokumentyObj> kinds = all<TDokumentyObj>(connection);
    std::erase_if(kinds, [](const TDokumentyObj &kind) { return kind.RODZAJE_AKCJI != 1; });
    choices.documentKinds = itemsOf(kinds, &TDokumentyObj::ID_DOKUMENTU,
                                    [](const TDokumentyObj &k) { return k.NAZWA; });
    sortByText(choices.documentKinds);

    choices.clients = loadClients(connection);

    choices.paymentTypes = itemsOf(all<TRodzaje_platnosciObj>(connection),
                                   &TRodzaje_platnosciObj::ID_RODZ_PLATNOSCI,
                                   [](const TRodzaje_platnosciObj &p) { return p.OPIS; });
    sortByText(choices.paymentTypes);

    const std::vector<TKonta_bankoweObj> accounts = all<TKonta_bankoweObj>(connection);
    choices.bankAccounts = itemsOf(accounts, &TKonta_bankoweObj::ID_KONTA,
                                   [](const TKonta_bankoweObj &a) -> QString {
                                       return a.BANK + QLatin1Char(' ') + a.RACHUNEK;
                                   });
    const auto marked = std::find_if(accounts.begin(), accounts.end(), [](const auto &a) {
        return a.DEFAULT_KONTO > 0;
    });
    if (marked != accounts.end())
        choices.defaultBankAccount = marked->ID_KONTA;
    else if (!accounts.empty())
        choices.defaultBankAccount = accounts.front().ID_KONTA;
    return choices;
}

std::vector<InvoiceHeaderChoices::Item> InvoiceHeaderChoices::loadClients(Connection &connection)
{
    std::vector<Item> clients = itemsOf(all<TKontrahenciObj>(connection),
                                        &TKontrahenciObj::ID_KONTRAHENTA,
                                        [](const TKontrahenciObj &c) { return c.NAZWA; });
    sortByText(clients);
    return clients;
}

bool InvoiceHeaderChoices::holds(const std::vector<Item> &items, int key)
{
    return std::any_of(items.begin(), items.end(), [key](const Item &i) { return i.key == key; });
}
