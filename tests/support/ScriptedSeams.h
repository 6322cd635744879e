#pragma once

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <memory>

// Runs every test with the scripted modal runner and file prompts, and
// keeps the settings the tests write in a directory of their own, emptied
// before each test.
class ScriptedSeamsListener : public testing::EmptyTestEventListener
{
public:
    ScriptedSeamsListener();
    ~ScriptedSeamsListener() override;

    void OnTestStart(const testing::TestInfo &) override;
    void OnTestEnd(const testing::TestInfo &) override;

private:
    QTemporaryDir m_settings;
};
