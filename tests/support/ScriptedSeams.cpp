#include "ScriptedSeams.h"

#include "ScriptedFilePrompts.h"
#include "ScriptedModalRunner.h"

#include <QSettings>

ScriptedSeamsListener::ScriptedSeamsListener()
{
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
}

ScriptedSeamsListener::~ScriptedSeamsListener() = default;

void ScriptedSeamsListener::OnTestStart(const testing::TestInfo &)
{
    QSettings(QStringLiteral("Kelvaro")).clear();
    ModalRunners::install(std::make_unique<ScriptedModalRunner>());
    FilePromptService::install(std::make_unique<ScriptedFilePrompts>());
}

void ScriptedSeamsListener::OnTestEnd(const testing::TestInfo &)
{
    ModalRunners::install(nullptr);
    FilePromptService::install(nullptr);
}
