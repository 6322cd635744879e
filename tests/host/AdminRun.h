#pragma once

#include <QProcessEnvironment>
#include <QStringList>

#include <functional>

// One run of a program of the project (haulix-admin, an installed copy)
// to its end: exit status and what it said.
struct AdminRun
{
    int exitCode = -1;
    QString output;
    QString errors;

    // Fails the test when the program does not end within ten minutes.
    static AdminRun of(const QString &program, const QStringList &arguments,
                       const QProcessEnvironment &environment
                       = QProcessEnvironment::systemEnvironment(),
                       const std::function<void()> &inChild = {});
};

// The lines of `haulix-admin summary`, without the one naming the database.
QStringList summaryLines(const QString &output);
