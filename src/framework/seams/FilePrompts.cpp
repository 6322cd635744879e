#include "FilePrompts.h"

#include <QFileDialog>
#include <QStringList>

namespace {

QString askWithDialog(QWidget *parent, const FilePrompt &prompt, QFileDialog::AcceptMode mode)
{
    QFileDialog dialog(parent, prompt.caption);
    dialog.setAcceptMode(mode);
    dialog.setFileMode(mode == QFileDialog::AcceptSave ? QFileDialog::AnyFile
                                                       : QFileDialog::ExistingFile);
    dialog.setNameFilter(FilePrompts::qtFilter(prompt.filter));
    dialog.setDefaultSuffix(FilePrompts::plainExtension(prompt.defaultExtension));
    if (!prompt.fileName.isEmpty())
        dialog.selectFile(prompt.fileName);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return QString();
    return dialog.selectedFiles().constFirst();
}

} // namespace

QString FilePrompts::qtFilter(const QString &filter)
{
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        QString masks = parts[i + 1];
        masks.replace(u';', u' ');
        filters << parts[i] + QStringLiteral(" (") + masks + u')';
    }
    return filters.join(QStringLiteral(";;"));
}

QString FilePrompts::plainExtension(const QString &extension)
{
    QString plain = extension;
    if (plain.startsWith(u'*'))
        plain.remove(0, 1);
    if (plain.startsWith(u'.'))
        plain.remove(0, 1);
    return plain;
}

QString QtFilePrompts::saveFileName(QWidget *parent, const FilePrompt &prompt)
{
    return askWithDialog(parent, prompt, QFileDialog::AcceptSave);
}

QString QtFilePrompts::openFileName(QWidget *parent, const FilePrompt &prompt)
{
    return askWithDialog(parent, prompt, QFileDialog::AcceptOpen);
}
