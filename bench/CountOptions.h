#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

// The command lines of the benchmarks: options each followed by a whole
// number above 0 ("--orders 10000"), written into the variable named for
// the option. False for anything else, an option not named included.
inline bool parseCountOptions(const QStringList &arguments, const QHash<QString, int *> &options)
{
    if (arguments.size() % 2 != 0)
        return false;
    for (qsizetype i = 0; i < arguments.size(); i += 2) {
        bool ok = false;
        const int value = arguments[i + 1].toInt(&ok);
        int *target = options.value(arguments[i]);
        if (!ok || value <= 0 || !target)
            return false;
        *target = value;
    }
    return true;
}
