#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace PrintJobs {
struct Job;
}

// The command line of haulix-print:
//   haulix-print --db DB NAME [ARGUMENTS] FILE
struct PrintCommand
{
    QString database;
    const PrintJobs::Job *job = nullptr;
    QStringList arguments;
    QString file;

    // std::nullopt and a Polish message in error when the line is wrong.
    static std::optional<PrintCommand> parse(const QStringList &arguments, QString &error);
    static QString usage();
};
