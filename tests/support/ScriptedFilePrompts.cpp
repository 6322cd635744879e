#include "ScriptedFilePrompts.h"

#include <gtest/gtest.h>

QString ScriptedFilePrompts::saveFileName(QWidget *, const FilePrompt &prompt)
{
    return next(prompt);
}

QString ScriptedFilePrompts::openFileName(QWidget *, const FilePrompt &prompt)
{
    return next(prompt);
}

QString ScriptedFilePrompts::next(const FilePrompt &prompt)
{
    m_asked.push_back(prompt);
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected file prompt \"" << prompt.caption.toStdString() << '"';
        return QString();
    }
    const QString path = m_answers.front();
    m_answers.pop_front();
    return path;
}

ScriptedFilePrompts &scriptedFilePrompts()
{
    auto *prompts = dynamic_cast<ScriptedFilePrompts *>(&FilePromptService::instance());
    if (!prompts)
        throw std::logic_error("no scripted file prompts installed");
    return *prompts;
}
