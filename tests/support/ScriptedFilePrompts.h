#pragma once

#include "FilePrompts.h"

#include <deque>
#include <vector>

// Test double of the file dialogs: answers each prompt with the next path
// of a queue (an empty path is a cancel) and records what was asked. A
// prompt nobody expected fails the test.
class ScriptedFilePrompts final : public FilePrompts
{
public:
    void answer(const QString &path) { m_answers.push_back(path); }

    QString saveFileName(QWidget *parent, const FilePrompt &prompt) override;
    QString openFileName(QWidget *parent, const FilePrompt &prompt) override;

    const std::vector<FilePrompt> &asked() const { return m_asked; }
    bool allAnswered() const { return m_answers.empty(); }

private:
    QString next(const FilePrompt &prompt);

    std::deque<QString> m_answers;
    std::vector<FilePrompt> m_asked;
};

ScriptedFilePrompts &scriptedFilePrompts();
