#pragma once

#include "Statement.h"

// The floor a report is measured against: its statement run and read
// forward-only, nothing done with the rows. Their number.
inline int rawRows(Statement &st)
{
    st.exec();
    int rows = 0;
    for (; !st.atEnd(); st.next())
        ++rows;
    return rows;
}
