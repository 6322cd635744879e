#include "OrderListQuery.h"

#include "DateTime.h"
#include "Statement.h"

namespace OrderListQuery {

QStringList lines(const OrderListFilter &filter)
{
    QStringList lines{
        QStringLiteral("SELECT * FROM VZLECENIA_PRZYCH WHERE (DATA BETWEEN :aDataOD AND :aDataDo"),
        QStringLiteral("OR DATA IS NULL OR DATA=:aDataZero )")};
    const QString owner = QString::number(filter.ownerKey);
    if (filter.kind == OrderListFilter::Forwarded)
        lines << QStringLiteral(" AND IDPRZEWOZNIK<> ") + owner;
    else if (filter.kind == OrderListFilter::OwnHaulage)
        lines << QStringLiteral(" AND  IDPRZEWOZNIK= ") + owner;
    if (filter.location == OrderListFilter::OutsideBranch)
        lines << QStringLiteral(" AND FILTR2 <> 1");
    else if (filter.location == OrderListFilter::BranchOnly)
        lines << QStringLiteral(" AND FILTR2 = 1");
    // The item index stands for the filter's key: the keys of FILTRY_PRZYCH
    // run 1, 2, 3 ... in the order the list is filled.
    if (filter.partnerIndex > 0)
        lines << QStringLiteral(" AND IDFILTR1 =  ") + QString::number(filter.partnerIndex);
    return lines;
}

void prepare(Statement &statement, const OrderListFilter &filter)
{
    for (const QString &line : lines(filter))
        statement.add(line);
    // The zero date itself, not NULL: other modules of the suite store
    // "no date" that way too.
    const QDateTime zeroDate(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
    statement.bind(QStringLiteral("aDataZero"), zeroDate);
    statement.bind(QStringLiteral("aDataOD"), DateTime::fromDate(filter.from));
    statement.bind(QStringLiteral("aDataDo"), DateTime::fromDate(filter.to));
}

} // namespace OrderListQuery
