#pragma once

#include "Seam.h"

#include <QString>

class QWidget;

// What a save or open dialog asks. The filter is written as the suite
// writes it: pairs of description and mask separated by '|'
// ("Pliki CSV|*.csv|Wszystkie pliki|*.*"); the default extension may be
// given with or without "*." in front.
struct FilePrompt
{
    QString caption;
    QString fileName;
    QString filter;
    QString defaultExtension;
};

// Asks the user for a file name; an empty text means the user cancelled.
class FilePrompts
{
public:
    virtual ~FilePrompts() = default;
    virtual QString saveFileName(QWidget *parent, const FilePrompt &prompt) = 0;
    virtual QString openFileName(QWidget *parent, const FilePrompt &prompt) = 0;

    // "Pliki CSV|*.csv|Wszystkie pliki|*.*" as Qt's "Pliki CSV (*.csv);;...".
    static QString qtFilter(const QString &filter);
    // "*.csv" or ".csv" or "csv" as "csv".
    static QString plainExtension(const QString &extension);
};

class QtFilePrompts final : public FilePrompts
{
public:
    QString saveFileName(QWidget *parent, const FilePrompt &prompt) override;
    QString openFileName(QWidget *parent, const FilePrompt &prompt) override;
};

using FilePromptService = Seam<FilePrompts, QtFilePrompts>;
