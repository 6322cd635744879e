#include "PrintCommand.h"

#include "KsefCommand.h"
#include "PrintJobs.h"

#include <algorithm>

std::optional<PrintCommand> PrintCommand::parse(const QStringList &arguments, QString &error)
{
    if (arguments.size() < 4 || arguments.at(0) != QLatin1String("--db")) {
        error = usage();
        return std::nullopt;
    }
    PrintCommand command;
    command.database = arguments.at(1);
    command.job = PrintJobs::find(arguments.at(2));
    if (!command.job) {
        error = QStringLiteral("Nieznany wydruk: %1.\n").arg(arguments.at(2)) + usage();
        return std::nullopt;
    }
    QStringList options;
    QStringList flags;
    bool valueDue = false;
    for (const QString &argument : arguments.mid(3, arguments.size() - 4)) {
        // An option's value follows it.
        if (valueDue || command.job->options.contains(argument)) {
            options << argument;
            valueDue = !valueDue;
        } else if (command.job->flags.contains(argument)) {
            flags << argument;
        } else {
            command.arguments << argument;
        }
    }
    if (valueDue) {
        error = QStringLiteral("Opcja %1 wymaga wartości.\n").arg(options.last()) + usage();
        return std::nullopt;
    }
    if (command.arguments.size() != command.job->argumentCount) {
        error = (command.job->argumentCount == 0
                     ? QStringLiteral("Wydruk %1 nie ma argumentów poza opcjami: %2.\n")
                     : QStringLiteral("Wydruk %1 wymaga argumentów: %2.\n"))
                    .arg(command.job->name, command.job->arguments)
            + usage();
        return std::nullopt;
    }
    command.arguments << options << flags;
    command.file = arguments.last();
    return command;
}

QString PrintCommand::usage()
{
    QString text = QStringLiteral("Użycie: haulix-print --db BAZA WYDRUK [ARGUMENTY] PLIK.pdf\n"
                                  "Wydruki:\n");
    // The descriptions stand in one column, right of the longest call that
    // leaves them room; a longer call gets its description on a line of its own.
    constexpr qsizetype Widest = 56;
    const auto headOf = [](const PrintJobs::Job &job) {
        return QStringLiteral("  %1 %2").arg(job.name, job.arguments);
    };
    qsizetype width = 40;
    for (const PrintJobs::Job &job : PrintJobs::all()) {
        const qsizetype size = headOf(job).size() + 2;
        if (size <= Widest)
            width = std::max(width, size);
    }
    for (const PrintJobs::Job &job : PrintJobs::all()) {
        const QString head = headOf(job);
        text += head.size() < width ? head.leftJustified(width)
                                    : head + u'\n' + QString(width, u' ');
        text += job.description + u'\n';
    }
    return text + KsefCommand::usage();
}
