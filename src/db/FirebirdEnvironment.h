#pragma once

#include <QString>

// The embedded engine reads its configuration once per process. Several of
// our processes (host, admin tool, tests) open the same database file at
// once, which needs ServerMode = SuperClassic; the system-wide default is
// Super. This points the engine at a private configuration directory before
// the first connection. A FIREBIRD variable set by the user is left alone.
namespace FirebirdEnvironment {

// Idempotent; returns the configuration directory in use.
QString prepare();

} // namespace FirebirdEnvironment
