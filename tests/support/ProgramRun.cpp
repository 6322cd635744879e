#include "ProgramRun.h"

#include <QProcess>

#include <gtest/gtest.h>

ProgramRun ProgramRun::of(const QString &program, const QStringList &arguments)
{
    QProcess process;
    // Whatever display the machine has, the program must not need it.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.remove(QStringLiteral("DISPLAY"));
    env.remove(QStringLiteral("QT_QPA_PLATFORM"));
    process.setProcessEnvironment(env);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << qPrintable(program) << " did not end";
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardError())};
}
