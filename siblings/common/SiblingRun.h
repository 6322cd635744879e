#pragma once

#include "DbError.h"
#include "TfrmRODefault.h"
#include "ReportFailures.h"
#include "MessageService.h"
#include "Privileges.h"
#include "SessionContext.h"
#include "TfrmRecordEditor.h"
#include "TfrmRegister.h"

#include <cstdint>
#include <exception>

class Connection;
class Transaction;

// What the exported entry points of a sibling library do, behind the
// extern "C" line: store the session the host hands over, run one modal
// form and turn its result into the entry's. Nothing thrown leaves here.
namespace SiblingRun {

// Runs work; a failure that got this far is shown and gives fallback.
template <class Work>
std::int32_t guarded(std::int32_t fallback, Work &&work)
{
    try {
        return work();
    } catch (const DbError &error) {
        reportFailure(QStringLiteral("Okno modułu zamknięto po błędzie bazy danych."), error);
    } catch (const std::exception &error) {
        reportFailure(QStringLiteral("Okno modułu zamknięto po błędzie."), error);
    }
    return fallback;
}

// A register window: its modal result (1 closed with OK, 2 cancelled).
template <class Form, class... Args>
std::int32_t window(std::int32_t userID, Connection *database, Transaction *transaction,
                    Args... args)
{
    setSession(userID, database, transaction);
    if (!database)
        return 0;
    return guarded(0, [&] {
        const auto form = TfrmRODefault::create<Form>(nullptr, TfrmRegister::Browse, 0, args...);
        return std::int32_t(form->showModal());
    });
}

// A selection window: 1 with the chosen key written to *selectedID, or 0
// with *selectedID untouched.
template <class Form, class... Args>
std::int32_t select(std::int32_t userID, std::int32_t currentID, Connection *database,
                    Transaction *transaction, std::int32_t *selectedID, Args... args)
{
    setSession(userID, database, transaction);
    if (!database || !selectedID)
        return 0;
    return guarded(0, [&] {
        const auto form
            = TfrmRODefault::create<Form>(nullptr, TfrmRegister::Select, currentID, args...);
        if (form->showModal() != TfrmRODefault::mrOk || form->chosenKey() == 0)
            return std::int32_t(0);
        *selectedID = form->chosenKey();
        return std::int32_t(1);
    });
}

// An editor on its own: a new record for key 0, else the record with key.
// The user needs the right of that kind (Privileges::Add or Edit) on the
// editor's form. 1 with the saved record's key written to *savedID, or 0.
template <class Editor>
std::int32_t edit(int privilege, std::int32_t userID, std::int32_t key, Connection *database,
                  Transaction *transaction, std::int32_t *savedID)
{
    setSession(userID, database, transaction);
    if (!database || !savedID)
        return 0;
    return guarded(0, [&] {
        const auto editor = TfrmRODefault::create<Editor>(nullptr, key);
        if (!Privileges::require(privilege, editor.get()))
            return std::int32_t(0);
        if (!editor->found()) {
            Messages::inform(QStringLiteral("Popraw"),
                             QStringLiteral("Nie ma pozycji o numerze %1: mogła zostać usunięta "
                                            "na innym stanowisku.")
                                 .arg(key),
                             MessageService::Icon::Warning);
            return std::int32_t(0);
        }
        if (editor->showModal() != TfrmRODefault::mrOk)
            return std::int32_t(0);
        *savedID = editor->savedKey();
        return std::int32_t(1);
    });
}

} // namespace SiblingRun
