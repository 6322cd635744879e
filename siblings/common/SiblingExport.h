#pragma once

#include <QtGlobal>

// How a sibling library exports its entry points: C names, visible outside
// the library (everything else in it is hidden).
#define SIBLING_EXPORT extern "C" Q_DECL_EXPORT
