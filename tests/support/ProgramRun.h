#pragma once

#include <QString>
#include <QStringList>

// One run of a program of the project, as a shell would start it on a
// machine without a display.
struct ProgramRun
{
    int exitCode = -1;
    QString errors;   // what it wrote on stderr

    // Fails the test when the program does not end within a minute.
    static ProgramRun of(const QString &program, const QStringList &arguments);
};
