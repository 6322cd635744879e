#pragma once

#include <functional>

// What drives the detail band: one detail per row.
class ReportDataSource
{
public:
    virtual ~ReportDataSource() = default;
    // Starts afresh on each run; false when there is no row at all.
    virtual bool first() = 0;
    // Moves to the next row; false at the end.
    virtual bool next() = 0;
};

// Rows handed out by a callback asked before every detail line; it answers
// whether there is one more (and moves its own counter).
class NeedDataSource final : public ReportDataSource
{
public:
    explicit NeedDataSource(std::function<bool()> moreData) : m_moreData(std::move(moreData)) {}

    bool first() override { return m_moreData(); }
    bool next() override { return m_moreData(); }

private:
    std::function<bool()> m_moreData;
};
