#include "KsefCommand.h"

#include "Connection.h"
#include "DbError.h"
#include "JobArguments.h"
#include "KsefError.h"
#include "KsefExport.h"
#include "PrintCommand.h"
#include "PrintoutError.h"
#include "StderrMessages.h"
#include "Transaction.h"

#include <QDir>
#include <QSet>
#include <QTextStream>

#include <stdexcept>

namespace {

const QString Single = QStringLiteral("ksef");
const QString Range = QStringLiteral("ksef-range");

int fail(const QString &message)
{
    StderrMessages::say(message);
    return 1;
}

// One file per invoice; two invoices of one number do not overwrite each other.
int exportRange(const KsefExport &exporter, const QStringList &arguments, const QDateTime &now)
{
    const auto [from, to] = JobArguments::periodOf(arguments.at(0), arguments.at(1));
    const QDir directory(arguments.at(2));
    if (!directory.exists() && !QDir().mkpath(directory.path()))
        return fail(QStringLiteral("Nie można utworzyć katalogu %1.").arg(directory.path()));
    QSet<QString> used;
    int written = 0;
    int failed = 0;
    for (const KsefExport::Issued &invoice : exporter.issuedBetween(from, to)) {
        QString name = KsefExport::fileName(invoice.fullNumber, invoice.key);
        if (used.contains(name))
            name.insert(name.size() - 4, QStringLiteral("-%1").arg(invoice.key));
        used.insert(name);
        try {
            exporter.save(invoice.key, directory.filePath(name), now);
            ++written;
        } catch (const KsefError &error) {
            StderrMessages::say(error.message());
            ++failed;
        }
    }
    QTextStream(stdout) << QStringLiteral("Zapisano plików KSeF: %1 w katalogu %2.\n")
                               .arg(written)
                               .arg(QDir::toNativeSeparators(directory.path()));
    return failed == 0 ? 0 : 1;
}

int exportInvoices(const QStringList &arguments)
{
    const QString &name = arguments.at(2);
    const QStringList rest = arguments.mid(3);
    const QDateTime now = QDateTime::currentDateTimeUtc();
    const int key = name == Single ? JobArguments::keyOf(rest.at(0)) : 0;
    if (name == Range)
        JobArguments::periodOf(rest.at(0), rest.at(1));
    Connection connection;
    try {
        connection.open(arguments.at(1));
    } catch (const DbError &error) {
        return fail(error.message());
    }
    // One snapshot for every invoice; nothing is written to the database.
    Transaction transaction(connection);
    TransactionScope snapshot(transaction);
    const KsefExport exporter(connection);
    if (name == Range)
        return exportRange(exporter, rest, now);
    exporter.save(key, rest.at(1), now);
    return 0;
}

} // namespace

std::optional<int> KsefCommand::run(const QStringList &arguments)
{
    if (arguments.size() < 3 || arguments.at(0) != QLatin1String("--db")
        || (arguments.at(2) != Single && arguments.at(2) != Range))
        return std::nullopt;
    const bool single = arguments.at(2) == Single;
    if (arguments.size() != (single ? 5 : 6)) {
        QTextStream(stderr) << QStringLiteral("Polecenie %1 wymaga argumentów: %2.\n")
                                   .arg(arguments.at(2),
                                        single ? QStringLiteral("ID PLIK.xml")
                                               : QStringLiteral("OD DO KATALOG"))
                            << PrintCommand::usage();
        return 2;
    }
    try {
        return exportInvoices(arguments);
    } catch (const std::invalid_argument &e) {
        StderrMessages::say(QString::fromUtf8(e.what()));
        return 2;
    } catch (const KsefError &e) {
        return fail(e.message());
    } catch (const PrintoutError &e) {
        return fail(e.message());
    } catch (const DbError &e) {
        return fail(QStringLiteral("Błąd bazy danych: ") + e.message());
    }
}

QString KsefCommand::usage()
{
    return QStringLiteral(
        "E-faktury KSeF (FA(3), sprawdzone ze schematem):\n"
        "  ksef ID PLIK.xml                      faktura o identyfikatorze ID\n"
        "  ksef-range OD DO KATALOG              każda faktura wystawiona w okresie, plik\n"
        "                                        na fakturę nazwany jej numerem\n");
}
