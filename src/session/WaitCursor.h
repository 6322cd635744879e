#pragma once

// The hourglass for as long as the object lives. Without a GUI application
// (tools, some tests) it does nothing.
class WaitCursor
{
public:
    WaitCursor();
    ~WaitCursor();
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;

private:
    bool m_shown = false;
};
