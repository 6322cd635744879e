#pragma once

#include <functional>

class Connection;
class Statement;

// What a comparison of the engine's rows with the driver's met.
struct SameRowsSeen
{
    int rows = 0;
    int nulls = 0;            // NULL cells
    int nonAsciiTexts = 0;    // texts with letters beyond ASCII
};

// Runs a statement that prepare fills (lines and values) through the driver
// (Statement) and another one through EngineRows, and expects every column
// of every row to read the same both ways with each typed reading, the
// value's type included.
SameRowsSeen expectSameRows(Connection &connection,
                            const std::function<void(Statement &)> &prepare);
