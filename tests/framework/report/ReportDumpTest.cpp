#include "CarrierInvoicesReport.h"

#include <QFile>

#include <gtest/gtest.h>

// The layout of a small report against a checked-in dump. After a wanted
// change of the layout, run with HAULIX_UPDATE_REFERENCE=1 and review the
// difference of the reference file.
TEST(ReportDump, SmallReportMatchesItsReferenceDump)
{
    CarrierInvoicesReport sample(sampleInvoices(2, 2));
    const QString dump = dumpPages(sample.report().prepare());
    QFile file(QStringLiteral(REPORT_REFERENCE_DIR "/carriers-2x2.txt"));
    if (qEnvironmentVariableIsSet("HAULIX_UPDATE_REFERENCE")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(dump.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    EXPECT_EQ(dump.toStdString(), QString::fromUtf8(file.readAll()).toStdString());
}
