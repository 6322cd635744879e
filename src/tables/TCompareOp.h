#pragma once

// How SelectWhere compares its column with the value.
enum TCompareOp {
    opEqual,
    opLess,
    opGreater,
    opContaining,
    opNotEqual,
    opStartingWith,
};
