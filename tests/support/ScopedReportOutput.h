#pragma once

#include "ReportOutput.h"

#include <memory>

// Installs a report output for the lifetime of the object and puts the
// previous one back afterwards.
template <class Output>
class ScopedReportOutput
{
public:
    template <class... Arguments>
    explicit ScopedReportOutput(Arguments &&...arguments)
    {
        auto output = std::make_unique<Output>(std::forward<Arguments>(arguments)...);
        m_output = output.get();
        m_previous = ReportOutput::install(std::move(output));
    }
    ~ScopedReportOutput() { ReportOutput::install(std::move(m_previous)); }
    ScopedReportOutput(const ScopedReportOutput &) = delete;
    ScopedReportOutput &operator=(const ScopedReportOutput &) = delete;

    Output *operator->() const { return m_output; }
    Output &operator*() const { return *m_output; }

private:
    Output *m_output = nullptr;
    std::unique_ptr<ReportOutput> m_previous;
};
