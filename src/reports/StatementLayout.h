#pragma once

#include "StatementTable.h"

#include <QString>

#include <vector>

// How a statement prints: its title, what its groups are (the caption of
// the group's heading and of its column in a spreadsheet), its columns in
// order, whether it needs a lying sheet and whether the monthly chart
// closes it.
struct StatementLayout
{
    QString title;
    QString groupCaption;
    std::vector<StatementColumn> columns;
    bool landscape = false;
    bool chart = false;
};
