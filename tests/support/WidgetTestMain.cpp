// The main of the tests of forms: every dialog a form opens modally and
// every file prompt is answered by the test's script.
#include "ScriptedSeams.h"
#include "TestRun.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    prepareTestRun(argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new ScriptedSeamsListener);
    return RUN_ALL_TESTS();
}
