// The main of the tests of logic: no widgets, so none are linked.
#include "TestRun.h"

#include <QGuiApplication>

#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication app(argc, argv);
    prepareTestRun(argc, argv);
    return RUN_ALL_TESTS();
}
