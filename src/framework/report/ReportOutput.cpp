#include "ReportOutput.h"

#include "QtReportOutput.h"

namespace {

std::unique_ptr<ReportOutput> &installed()
{
    static std::unique_ptr<ReportOutput> output;
    return output;
}

} // namespace

ReportOutput &ReportOutput::instance()
{
    static QtReportOutput builtIn;
    ReportOutput *output = installed().get();
    return output ? *output : builtIn;
}

std::unique_ptr<ReportOutput> ReportOutput::install(std::unique_ptr<ReportOutput> output)
{
    std::unique_ptr<ReportOutput> previous = std::move(installed());
    installed() = std::move(output);
    return previous;
}
