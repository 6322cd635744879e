#include "HostOptions.h"

#include "SiblingRegisters.h"

std::optional<HostOptions> HostOptions::parse(const QStringList &arguments, QString &error)
{
    HostOptions options;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool hasValue = i + 1 < arguments.size();
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
            error = QStringLiteral("Nieznany argument: %1\n"
                                   "Użycie: haulix [--db ŚCIEŻKA | --db host[/port]:ścieżka] "
                                   "[--user ID] [--report | --module MODUŁ]")
                        .arg(argument);
            return std::nullopt;
        }
    }
    if (options.partnersReport && !options.module.isEmpty()) {
        error = QStringLiteral("--report i --module wykluczają się: host otwiera jedno okno.");
        return std::nullopt;
    }
    return options;
}
