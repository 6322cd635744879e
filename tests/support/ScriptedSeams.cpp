#include "ScriptedSeams.h"

void ScriptedSeamsListener::OnTestStart(const testing::TestInfo &)
{
    m_modalRunner = std::make_unique<ModalRunners::Scoped<ScriptedModalRunner>>();
    m_filePrompts = std::make_unique<FilePromptService::Scoped<ScriptedFilePrompts>>();
}

void ScriptedSeamsListener::OnTestEnd(const testing::TestInfo &)
{
    m_filePrompts.reset();
    m_modalRunner.reset();
}
