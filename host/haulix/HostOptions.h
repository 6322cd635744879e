#pragma once

#include <QString>
#include <QStringList>

#include <optional>

// The command line of the haulix program:
//   haulix [--db PATH | --db host[/port]:path] [--user ID] [--report | --module NAME]
//   haulix --help
struct HostOptions
{
    // --help (or -h): the usage is printed and nothing else is done.
    bool help = false;
    QString database;   // empty: the demo database
    int userId = 1;
    bool partnersReport = false;
    // A sibling module whose register opens instead of the incoming orders
    // (SiblingRegister::libraries()); empty for none.
    QString module;

    // std::nullopt and a Polish message in error when the line is wrong.
    static std::optional<HostOptions> parse(const QStringList &arguments, QString &error);
    // The usage with what each option does, in Polish.
    static QString usage();
};
