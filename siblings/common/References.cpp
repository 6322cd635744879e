#include "References.h"

#include "Statement.h"

std::vector<ReferenceUse> References::uses(Connection &connection,
                                           const std::vector<Reference> &references, int key)
{
    std::vector<ReferenceUse> found;
    for (const Reference &reference : references) {
        // Table and column names come from the program, never from the user.
        QStringList conditions;
        for (const QString &column : reference.columns)
            conditions << column + QStringLiteral(" = :aKey");
        Statement st(connection);
        st.add(QStringLiteral("SELECT COUNT(*) FROM ") + reference.table);
        st.add(QStringLiteral("WHERE ") + conditions.join(QStringLiteral(" OR ")));
        st.bind(QStringLiteral("aKey"), key);
        st.exec();
        if (const int count = st.integer(0); count > 0)
            found.push_back({reference.what, count});
    }
    return found;
}

QString References::refusal(const std::vector<ReferenceUse> &uses)
{
    if (uses.empty())
        return QString();
    QStringList parts;
    for (const ReferenceUse &use : uses)
        parts << QStringLiteral("%1 (%2)").arg(use.what).arg(use.count);
    return QStringLiteral("Nie można usunąć wybranej pozycji, ponieważ korzystają z niej: %1.\n"
                          "Najpierw zmień lub usuń te zapisy. Nic nie zostało usunięte.")
        .arg(parts.join(QStringLiteral(", ")));
}
