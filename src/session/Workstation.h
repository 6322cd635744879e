#pragma once

#include <QString>

// Who works where, as the activity history records it.
namespace Workstation {

// The computer's name, at most 16 characters.
QString computerName();

// The operating-system user name, at most 51 characters.
QString loginName();

} // namespace Workstation
