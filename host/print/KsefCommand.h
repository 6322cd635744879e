#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The e-invoices haulix-print writes besides its printouts:
//   haulix-print --db DB ksef ID FILE.xml
//   haulix-print --db DB ksef-range FROM TO DIR
// the second one file per invoice issued on those days, named by its full
// number. An invoice that cannot be exported is one Polish line on stderr;
// the others are still written, and the status is then 1.
namespace KsefCommand {

// The exit status; none when the command line is not one of these.
std::optional<int> run(const QStringList &arguments);

// The lines of the usage text.
QString usage();

} // namespace KsefCommand
