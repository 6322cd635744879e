#include "InvoiceCommand.h"

#include "BatchInvoicing.h"
#include "Connection.h"
#include "DbError.h"
#include "InvoicingError.h"
#include "SessionContext.h"
#include "Transaction.h"

#include <QTextStream>

#include <optional>

namespace InvoiceCommand {

namespace {

constexpr int Invoiced = 0;
constexpr int NothingToInvoice = 1;
constexpr int Failed = 2;

struct Parsed
{
    QString database;
    BatchInvoicing::Options options;
};

std::optional<QDate> dateArgument(const QString &text)
{
    const QDate date = QDate::fromString(text, Qt::ISODate);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

// Fills parsed from the arguments; the Polish reason when they are wrong.
QString parse(const QStringList &arguments, Parsed &parsed)
{
    if (arguments.isEmpty())
        return QStringLiteral("Podaj bazę danych.");
    parsed.database = arguments.first();
    parsed.options.issued = QDate::currentDate();
    bool hasClient = false;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &name = arguments[i];
        if (name == QLatin1String("--by-sale-date")) {
            parsed.options.bySaleDate = true;
            continue;
        }
        if (i + 1 >= arguments.size())
            return QStringLiteral("Brak wartości argumentu %1.").arg(name);
        const QString value = arguments[++i];
        bool ok = true;
        if (name == QLatin1String("--client")) {
            parsed.options.client = value.toInt(&ok);
            ok = ok && parsed.options.client > 0;
            hasClient = ok;
        } else if (name == QLatin1String("--user")) {
            parsed.options.userId = value.toInt(&ok);
            ok = ok && parsed.options.userId > 0;
        } else if (name == QLatin1String("--from") || name == QLatin1String("--to")
                   || name == QLatin1String("--issue-date")) {
            const std::optional<QDate> date = dateArgument(value);
            ok = date.has_value();
            QDate &target = name == QLatin1String("--from")  ? parsed.options.from
                            : name == QLatin1String("--to") ? parsed.options.to
                                                            : parsed.options.issued;
            target = date.value_or(QDate());
        } else {
            return QStringLiteral("Nieznany argument %1.").arg(name);
        }
        if (!ok)
            return QStringLiteral("Niepoprawna wartość argumentu %1: %2 (identyfikator to "
                                  "liczba dodatnia, data ma postać RRRR-MM-DD).")
                .arg(name, value);
    }
    if (!hasClient)
        return QStringLiteral("Podaj kontrahenta: --client ID.");
    if (!parsed.options.from.isValid() || !parsed.options.to.isValid())
        return QStringLiteral("Podaj okres: --from RRRR-MM-DD --to RRRR-MM-DD.");
    if (parsed.options.from > parsed.options.to)
        return QStringLiteral("Początek okresu jest późniejszy niż jego koniec.");
    return {};
}

} // namespace

QString usage()
{
    return QStringLiteral("  haulix-admin invoice ŚCIEŻKA --client ID --from RRRR-MM-DD --to "
                          "RRRR-MM-DD [--by-sale-date] [--issue-date RRRR-MM-DD] [--user ID]\n");
}

int run(const QStringList &arguments, QTextStream &out, QTextStream &err)
{
    struct Flush
    {
        QTextStream &out, &err;
        ~Flush()
        {
            out.flush();
            err.flush();
        }
    } flush{out, err};
    Parsed parsed;
    if (const QString problem = parse(arguments, parsed); !problem.isEmpty()) {
        err << "Błąd: " << problem << "\nUżycie:\n" << usage();
        return Failed;
    }
    try {
        Connection connection;
        connection.open(parsed.database);
        Transaction transaction(connection);
        setSession(parsed.options.userId, &connection, &transaction);
        const auto issued = BatchInvoicing::run(transaction, parsed.options);
        setSession(0, nullptr, nullptr);
        if (!issued) {
            out << QStringLiteral("Brak niezafakturowanych zleceń kontrahenta %1 załadowanych "
                                  "od %2 do %3.\n")
                       .arg(parsed.options.client)
                       .arg(parsed.options.from.toString(Qt::ISODate),
                            parsed.options.to.toString(Qt::ISODate));
            return NothingToInvoice;
        }
        out << issued->fullNumber << ' ' << issued->key << '\n';
        return Invoiced;
    } catch (const InvoicingError &error) {
        err << "Nie wystawiono faktury";
        if (!error.shown())
            err << ": " << error.message();
        err << '\n';
    } catch (const DbError &error) {
        err << "Nie wystawiono faktury: " << error.message() << '\n';
    }
    setSession(0, nullptr, nullptr);
    return Failed;
}

} // namespace InvoiceCommand
