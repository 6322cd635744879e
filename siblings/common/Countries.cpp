#include "Countries.h"

#include "PostalCode.h"
#include "Statement.h"

ChoiceSource Countries::choices()
{
    return Choices::fromQuery(QStringLiteral("SELECT ID_KRAJU, NAZWA FROM KRAJE ORDER BY NAZWA"));
}

int Countries::polandKey(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT MIN(ID_KRAJU) FROM KRAJE WHERE SYMBOL = 'PL'"));
    st.exec();
    return st.integer(0);
}

Problem Countries::postalCodeField(Connection &connection, int countryKey, const QString &code)
{
    if (countryKey == 0 || code.isEmpty())
        return std::nullopt;
    Statement st(connection);
    st.add(QStringLiteral("SELECT SYMBOL, NAZWA, KOD_POCZTOWY_MASKA FROM KRAJE"));
    st.add(QStringLiteral("WHERE ID_KRAJU = :aID_KRAJU"));
    st.bind(QStringLiteral("aID_KRAJU"), countryKey);
    st.exec();
    if (st.atEnd())
        return std::nullopt;
    QString mask = st.string(2);
    if (mask.isEmpty() && st.string(0) == QLatin1String("PL"))
        mask = PostalCode::PolishMask;
    const QString problem = PostalCode::problem(code, mask, st.string(1));
    if (problem.isEmpty())
        return std::nullopt;
    return FieldProblem{QStringLiteral("edKod"), problem};
}
