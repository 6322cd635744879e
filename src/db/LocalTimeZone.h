#pragma once

// Without TZ in the environment, the C library looks at /etc/localtime
// again on every conversion to local time: every date and time a list
// reads. Naming that same file in TZ makes it read the zone once, and no
// time shown changes. A TZ the user set is left alone.
namespace LocalTimeZone {

// Idempotent; to be called before the program's other threads start
// (setting the environment is not safe alongside them).
void pin();

} // namespace LocalTimeZone
