#pragma once

#include <QString>

#include <ibase.h>

// The engine's message for a failed call: its parts joined by " - ", as
// the driver reports them.
QString firebirdStatusText(const ISC_STATUS *status);
