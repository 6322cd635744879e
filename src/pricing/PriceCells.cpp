#include "PriceCells.h"

#include "Statement.h"
#include "TCenniki_krajObj.h"

std::vector<PriceCell> PriceCells::ofGroup(Connection &connection, int group)
{
    Statement st(connection);
    st.add(QStringLiteral("select * from CENNIKI_KRAJ WHERE GRUPA=") + QString::number(group));
    st.exec();
    const int kilometres = st.columnIndex(QStringLiteral("KILOMETRY"));
    const int kilograms = st.columnIndex(QStringLiteral("KILOGRAMY"));
    const int amount = st.columnIndex(QStringLiteral("KWOTA"));
    std::vector<PriceCell> cells;
    for (; !st.atEnd(); st.next())
        cells.push_back({st.integer(kilometres), st.integer(kilograms), st.number(amount)});
    return cells;
}

double PriceCells::amountAt(Connection &connection, int group, int kilometreRange,
                            int kilogramRange)
{
    Statement st(connection);
    st.add(QStringLiteral("select * from  CENNIKI_KRAJ where KILOGRAMY=")
           + QString::number(kilogramRange) + QStringLiteral(" AND KILOMETRY=")
           + QString::number(kilometreRange));
    st.add(QStringLiteral("AND GRUPA=") + QString::number(group));
    st.exec();
    return st.atEnd() ? 0.0 : st.number(QStringLiteral("KWOTA"));
}

PriceCells::Stored PriceCells::store(Connection &connection, int group, int kilometreRange,
                                     int kilogramRange, double amount)
{
    const TCenniki_krajObj cells(connection);
    const std::vector<TCenniki_krajObj> found = cells.SelectClause(
        QStringLiteral("where KILOGRAMY=") + QString::number(kilogramRange)
        + QStringLiteral(" AND KILOMETRY=") + QString::number(kilometreRange)
        + QStringLiteral(" AND GRUPA=") + QString::number(group));
    TCenniki_krajObj cell = found.empty() ? cells : found.front();
    cell.KILOMETRY = kilometreRange;
    cell.KILOGRAMY = kilogramRange;
    cell.KWOTA = amount;
    cell.GRUPA = group;
    if (!found.empty()) {
        if (amount <= 0.0) {
            cell.Delete();
            return Stored::Deleted;
        }
        cell.Update();
        return Stored::Updated;
    }
    if (amount <= 0.0)
        return Stored::Nothing;
    return cell.Insert() ? Stored::Inserted : Stored::Nothing;
}
