#pragma once

#include <QApplication>
#include <QTemporaryDir>

// What the project's offscreen programs (shots, benchmarks) share: the
// offscreen platform unless another is asked for, the Polish locale, and
// list settings kept in a temporary directory instead of the user's own.
class OffscreenProgram
{
public:
    OffscreenProgram(int &argc, char **argv);

    // The command-line arguments after the program name.
    QStringList arguments() const;

private:
    static int &preparePlatform(int &argc);

    QApplication m_application;
    QTemporaryDir m_settings;
};
