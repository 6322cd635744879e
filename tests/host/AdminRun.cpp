#include "AdminRun.h"

#include <QProcess>

#include <gtest/gtest.h>

AdminRun AdminRun::of(const QString &program, const QStringList &arguments,
                      const QProcessEnvironment &environment, const std::function<void()> &inChild)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    if (inChild)
        process.setChildProcessModifier(inChild);
    process.start(program, arguments);
    process.closeWriteChannel();
    EXPECT_TRUE(process.waitForFinished(600000))
        << program.toStdString() << " " << arguments.join(u' ').toStdString() << " did not end";
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QStringList summaryLines(const QString &output)
{
    QStringList lines = output.split(u'\n', Qt::SkipEmptyParts);
    lines.removeIf([](const QString &line) { return line.startsWith(QLatin1String("Baza: ")); });
    return lines;
}
