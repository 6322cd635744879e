#include "PrintCommand.h"

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
    for (const QString &argument : arguments.mid(3, arguments.size() - 4)) {
        // An option's value follows it.
        if (options.size() % 2 == 1 || command.job->options.contains(argument))
            options << argument;
        else
            command.arguments << argument;
    }
    if (options.size() % 2 == 1) {
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
    command.arguments << options;
    command.file = arguments.last();
    return command;
}

QString PrintCommand::usage()
{
    QString text = QStringLiteral("Użycie: haulix-print --db BAZA WYDRUK [ARGUMENTY] PLIK.pdf\n"
                                  "Wydruki:\n");
    // The descriptions stand in one column, right of the longest call.
    qsizetype width = 40;
    for (const PrintJobs::Job &job : PrintJobs::all())
        width = std::max(width, job.name.size() + job.arguments.size() + 5);
    for (const PrintJobs::Job &job : PrintJobs::all()) {
        text += QStringLiteral("  %1 %2").arg(job.name, job.arguments).leftJustified(width)
            + job.description + u'\n';
    }
    return text;
}
