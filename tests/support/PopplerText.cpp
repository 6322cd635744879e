#include "PopplerText.h"

#include <QProcess>
#include <QStringList>

#include <gtest/gtest.h>

namespace {

QString run(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished(60000) || process.exitCode() != 0) {
        ADD_FAILURE() << tool.toStdString() << " failed: "
                      << process.readAllStandardError().toStdString();
        return QString();
    }
    return QString::fromUtf8(process.readAllStandardOutput());
}

} // namespace

QString Poppler::text(const QString &path)
{
    return run(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), path, QStringLiteral("-")});
}

QString Poppler::info(const QString &path, const QString &key, int page)
{
    QStringList arguments;
    if (page > 0) {
        arguments << QStringLiteral("-f") << QString::number(page) << QStringLiteral("-l")
                  << QString::number(page);
    }
    const QStringList lines = run(QStringLiteral("pdfinfo"), arguments << path).split(u'\n');
    for (const QString &line : lines) {
        const qsizetype colon = line.indexOf(u':');
        if (colon > 0 && line.left(colon).endsWith(key))
            return line.mid(colon + 1).trimmed();
    }
    return QString();
}
