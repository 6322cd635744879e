#include "DateTime.h"
#include "ScriptedMessages.h"
#include "ScriptedSeams.h"

#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

namespace {

// Every test runs with scripted message boxes: a box that a test does not
// expect fails it instead of blocking the run.
class ScriptedMessagesListener : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo &) override
    {
        m_messages = std::make_unique<MessageServices::Scoped<ScriptedMessages>>();
    }
    void OnTestEnd(const testing::TestInfo &) override { m_messages.reset(); }
    std::unique_ptr<MessageServices::Scoped<ScriptedMessages>> m_messages;
};

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLocale::setDefault(QLocale(QLocale::Polish, QLocale::Poland));
    qRegisterMetaType<DateTime>();
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new ScriptedMessagesListener);
    testing::UnitTest::GetInstance()->listeners().Append(new ScriptedSeamsListener);
    return RUN_ALL_TESTS();
}
