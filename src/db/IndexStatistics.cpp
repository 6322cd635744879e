#include "IndexStatistics.h"

#include "Statement.h"

#include <QStringList>

int IndexStatistics::refresh(Connection &connection)
{
    QStringList indexes;
    {
        Statement st(connection);
        st.add(QStringLiteral("SELECT TRIM(RDB$INDEX_NAME) FROM RDB$INDICES "));
        st.add(QStringLiteral("WHERE COALESCE(RDB$SYSTEM_FLAG, 0) = 0 "));
        st.add(QStringLiteral("AND COALESCE(RDB$INDEX_INACTIVE, 0) = 0"));
        st.exec();
        for (; !st.atEnd(); st.next())
            indexes << st.string(0);
    }
    for (const QString &index : indexes) {
        Statement st(connection);
        // A name read from the catalogue, quoted as the catalogue spells it.
        st.add(QStringLiteral("SET STATISTICS INDEX \"%1\"").arg(index));
        st.exec();
    }
    return static_cast<int>(indexes.size());
}
