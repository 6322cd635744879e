#include "NumberingLock.h"

#include "DbError.h"
#include "Statement.h"

namespace {

void bindSeries(Statement &st, const NumberSeries &series)
{
    st.bind(QStringLiteral("aRODZAJ"), series.kind);
    st.bind(QStringLiteral("aROK"), series.year);
    st.bind(QStringLiteral("aMIESIAC"), series.month);
}

bool lockRow(Connection &connection, const NumberSeries &series)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT ID_NUMERACJI FROM NUMERACJA"));
    st.add(QStringLiteral("WHERE RODZAJ=:aRODZAJ AND ROK=:aROK AND MIESIAC=:aMIESIAC"));
    st.add(QStringLiteral("WITH LOCK"));
    bindSeries(st, series);
    st.exec();
    return !st.atEnd();
}

// The new row is the lock while this transaction runs: another workstation
// adding it waits for the end of this one.
void addRow(Connection &connection, const NumberSeries &series)
{
    Statement st(connection);
    st.add(QStringLiteral("INSERT INTO NUMERACJA (RODZAJ,ROK,MIESIAC)"));
    st.add(QStringLiteral("VALUES (:aRODZAJ,:aROK,:aMIESIAC)"));
    bindSeries(st, series);
    try {
        st.exec();
    } catch (const DbError &error) {
        // Another workstation added the row first; this transaction cannot
        // see it, nor the rows it numbered.
        if (error.nativeCode() == -803)
            throw DbError(error.message(), error.nativeCode(), DbError::Kind::Conflict);
        throw;
    }
}

} // namespace

void NumberingLock::take(Transaction &transaction, const NumberSeries &series)
{
    if (!transaction.InTransaction())
        throw DbError(QStringLiteral("Blokada numeracji %1 wymaga rozpoczętej transakcji.")
                          .arg(series.kind));
    Connection &connection = transaction.connection();
    if (!lockRow(connection, series))
        addRow(connection, series);
}
