#pragma once

#include "Seam.h"

class QtReportOutput;
class Report;

// Where a report goes when it is previewed or printed: windows and the
// printer in the program, files in tests and tools.
class ReportOutput
{
public:
    virtual ~ReportOutput() = default;

    // Lays the report out and shows it; the user may print from there.
    // False when the report could not be laid out.
    virtual bool preview(Report &report) = 0;
    // Lays the report out and prints it straight away.
    virtual bool print(Report &report) = 0;
};

// Preview windows and the printer until a test installs another output.
using ReportOutputs = Seam<ReportOutput, QtReportOutput>;
