#include "TestRun.h"

#include "DateTime.h"
#include "ScriptedMessages.h"

#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

namespace {

class ScriptedMessagesListener : public testing::EmptyTestEventListener
{
public:
    ScriptedMessagesListener()
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    }

    void OnTestStart(const testing::TestInfo &) override
    {
        QSettings(QStringLiteral("Kelvaro")).clear();
        m_messages = std::make_unique<MessageServices::Scoped<ScriptedMessages>>();
    }
    void OnTestEnd(const testing::TestInfo &) override { m_messages.reset(); }

private:
    QTemporaryDir m_settings;
    std::unique_ptr<MessageServices::Scoped<ScriptedMessages>> m_messages;
};

} // namespace

void prepareTestRun(int &argc, char **argv)
{
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    qRegisterMetaType<DateTime>();
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new ScriptedMessagesListener);
}
