#include "ReportCsvExport.h"

#include "FilePrompts.h"
#include "MessageService.h"
#include "Report.h"
#include "ReportError.h"

namespace {

// The title as a file name any system takes.
QString fileNameOf(const Report &report)
{
    QString name = report.title().simplified();
    for (const QChar forbidden : QStringLiteral("/\\:*?\"<>|"))
        name.replace(forbidden, u'_');
    return (name.isEmpty() ? QStringLiteral("zestawienie") : name) + QStringLiteral(".csv");
}

} // namespace

bool ReportCsvExport::save(QWidget *parent, const Report &report)
{
    const FilePrompt prompt{QStringLiteral("Zapisz zestawienie jako CSV"),
                            fileNameOf(report),
                            QStringLiteral("Pliki CSV|*.csv|Wszystkie pliki|*.*"),
                            QStringLiteral("csv")};
    const QString path = FilePromptService::instance().saveFileName(parent, prompt);
    if (path.isEmpty())
        return false;
    try {
        report.table().writeCsv(path);
    } catch (const ReportError &error) {
        Messages::error(error.message());
        return false;
    }
    return true;
}
