#include "HostOptions.h"

#include "SiblingRegisters.h"

namespace {

QString usageLine()
{
    return QStringLiteral("Użycie: haulix [--db ŚCIEŻKA | --db host[/port]:ścieżka] "
                          "[--user ID] [--report | --module MODUŁ]");
}

} // namespace

QString HostOptions::usage()
{
    return usageLine()
        + QStringLiteral("\n"
                         "  --db ŚCIEŻKA    plik bazy danych (silnik wbudowany)\n"
                         "                  albo host[/port]:ścieżka (serwer Firebird);\n"
                         "                  bez --db baza demonstracyjna\n"
                         "  --user ID       identyfikator użytkownika (domyślnie 1)\n"
                         "  --report        raport wspólników zamiast rejestru zleceń\n"
                         "  --module MODUŁ  rejestr modułu pokrewnego zamiast rejestru zleceń:\n"
                         "                  %1\n"
                         "  --help          ten opis\n")
              .arg(SiblingRegister::libraries().join(QStringLiteral(", ")));
}

std::optional<HostOptions> HostOptions::parse(const QStringList &arguments, QString &error)
{
    HostOptions options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool hasValue = i + 1 < arguments.size();
        if (argument == QLatin1String("--help") || argument == QLatin1String("-h")) {
            options.help = true;
            return options;
        }
        if (argument == QLatin1String("--db") && hasValue) {
            options.database = arguments.at(++i);
        } else if (argument == QLatin1String("--user") && hasValue) {
            bool ok = false;
            options.userId = arguments.at(++i).toInt(&ok);
            if (!ok || options.userId <= 0) {
                error = QStringLiteral("Identyfikator użytkownika musi być liczbą dodatnią: %1")
                            .arg(arguments.at(i));
                return std::nullopt;
            }
        } else if (argument == QLatin1String("--report")) {
            options.partnersReport = true;
        } else if (argument == QLatin1String("--module") && hasValue) {
            const std::optional<SiblingRegister> sibling
                = SiblingRegister::named(arguments.at(++i));
            if (!sibling) {
                error = QStringLiteral("Nieznany moduł: %1\nModuły: %2")
                            .arg(arguments.at(i),
                                 SiblingRegister::libraries().join(QStringLiteral(", ")));
                return std::nullopt;
            }
            options.module = sibling->library;
        } else {
            error = QStringLiteral("Nieznany argument: %1\n").arg(argument) + usageLine();
            return std::nullopt;
        }
    }
    if (options.partnersReport && !options.module.isEmpty()) {
        error = QStringLiteral("--report i --module wykluczają się: host otwiera jedno okno.");
        return std::nullopt;
    }
    return options;
}
