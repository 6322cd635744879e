#pragma once

#include <QString>

// What the list frame's "Informacje systemowe" box says about the running
// program: file names and versions of the host program and of this
// module, the window, the application directory and the heap in use.
namespace SystemInfo {

struct HeapUse
{
    qint64 bytes = 0;
    qint64 blocks = 0;
};

// From the C library's allocator statistics: bytes handed out, and the
// blocks the allocator holds from the system (the main heap and every
// separately mapped large block), since glibc keeps no count of live
// allocations.
HeapUse heapUse();

// A version as four numbers joined by "." ("0.1.0" becomes "0.1.0.0"),
// "-" when there is none.
QString versionText(const QString &version);

// The file this module's code was loaded from (the program itself when
// the module is linked in statically).
QString moduleFilePath();

// The whole text of the box, ending with the clipboard question.
QString text(const QString &windowClass);

} // namespace SystemInfo
