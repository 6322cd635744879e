#pragma once

#include "ReportOutput.h"

// The program's output: a print preview window, and the default printer.
class QtReportOutput final : public ReportOutput
{
public:
    bool preview(Report &report) override;
    bool print(Report &report) override;
};
