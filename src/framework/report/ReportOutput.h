#pragma once

#include <memory>

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

    // The output in use; preview windows and the printer until another is
    // installed.
    static ReportOutput &instance();
    // Installs an output and returns the one it replaces (null for the
    // built-in one), so a test can put the previous one back.
    static std::unique_ptr<ReportOutput> install(std::unique_ptr<ReportOutput> output);
};
