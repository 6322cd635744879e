#pragma once

#include "FilePrompts.h"
#include "ModalRunner.h"
#include "ScriptedFilePrompts.h"
#include "ScriptedModalRunner.h"

#include <gtest/gtest.h>

#include <memory>

// Runs every test of forms with the scripted modal runner and file prompts.
class ScriptedSeamsListener : public testing::EmptyTestEventListener
{
public:
    void OnTestStart(const testing::TestInfo &) override;
    void OnTestEnd(const testing::TestInfo &) override;

private:
    std::unique_ptr<ModalRunners::Scoped<ScriptedModalRunner>> m_modalRunner;
    std::unique_ptr<FilePromptService::Scoped<ScriptedFilePrompts>> m_filePrompts;
};
