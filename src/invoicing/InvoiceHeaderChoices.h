#pragma once

#include <QString>

#include <vector>

class Connection;

// What the invoice header offers to choose from, read once when the
// header is filled in: document kinds that invoice orders, clients,
// payment types and the company's bank accounts, each with its key.
struct InvoiceHeaderChoices
{
    struct Item
    {
        int key = 0;
        QString text;
    };

    // Kinds whose action flag RODZAJE_AKCJI is 1, by name.
    std::vector<Item> documentKinds;
    // Every contractor, by full name in Polish alphabetical order.
    std::vector<Item> clients;
    // By description.
    std::vector<Item> paymentTypes;
    // As stored: bank and account number.
    std::vector<Item> bankAccounts;
    // The first account marked default, else the first; 0 without any.
    int defaultBankAccount = 0;

    // A list that cannot be read has been reported by its table object
    // and stays empty.
    static InvoiceHeaderChoices load(Connection &connection);

    // Every contractor, as in clients; reported and empty after a failure.
    static std::vector<Item> loadClients(Connection &connection);

    // Whether a list holds the key.
    static bool holds(const std::vector<Item> &items, int key);
};
