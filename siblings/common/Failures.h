#pragma once

#include <QString>

// How the siblings report a database action that failed outside the
// table objects (which report their own): the user reads one Polish
// sentence saying what did not happen and what to do, the engine's text
// goes to the error log only.
namespace Failures {

// what: the sentence, e.g. "Nie udało się wczytać listy."
void report(const QString &what, const QString &reason);

} // namespace Failures
