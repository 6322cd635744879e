#include "PartnersSelection.h"

#include "Configuration.h"
#include "DateTime.h"
#include "Statement.h"
#include "TKontrahenciObj.h"

void PartnersSelection::prepare(Statement &statement, const QString &ownShortName) const
{
    statement.clear();
    statement.add(QStringLiteral("select * from VRAPORT_WSPOLNICY"));
    statement.add(QStringLiteral("WHERE fak_dwyst between :d1 and :d2"));
    statement.bind(QStringLiteral("d1"), DateTime::fromDate(from));
    statement.bind(QStringLiteral("d2"), DateTime::fromDate(to));
    if (region == Domestic)
        statement.add(QStringLiteral("AND KRAJ=1"));
    else if (region == Foreign)
        statement.add(QStringLiteral("AND KRAJ=0"));
    if (executor == OwnCompany)
        statement.add(QStringLiteral(" AND PRZEWOZNIK=:APRZ "));
    else if (executor == OtherCarriers)
        statement.add(QStringLiteral(" AND PRZEWOZNIK<>:APRZ "));
    if (executor != AnyExecutor)
        statement.bind(QStringLiteral("APRZ"), ownShortName);
    // A key, never typed text: it may stand in the statement's text.
    if (partner)
        statement.add(QStringLiteral(" AND IDFILTR1=") + QString::number(*partner));
    statement.add(QStringLiteral("ORDER BY fak_dwyst"));
}

QString PartnersSelection::title() const
{
    QString title;
    if (!showAll)
        title = QStringLiteral("Dla kontrahenta: ") + partnerText + QStringLiteral(". ");
    title += QStringLiteral("Z okresu: ") + fromText + QStringLiteral(" - ") + toText;
    switch (region) {
    case Domestic:
        return title + QStringLiteral(". Zlecenia krajowe.");
    case Foreign:
        return title + QStringLiteral(". Zlecenia zagraniczne.");
    case AllRegions:
        break;
    }
    return title + QStringLiteral(". Zlecenia krajowe i zagraniczne.");
}

QString PartnersSelection::ownShortName(Connection &connection)
{
    const int owner = Configuration(&connection).GetConfigInt(QStringLiteral("IDWłaściciela"));
    return TKontrahenciObj(connection).SelectById(owner).SKROT;
}

QDate PartnersSelection::monthBefore(QDate day)
{
    // Qt keeps the day where it can and takes the month's last one otherwise.
    return day.addMonths(-1);
}

std::vector<PartnersSelection::Partner> PartnersSelection::partners(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("select * from FILTRY_przych where NR_FILTRA=1 "));
    st.exec();
    std::vector<Partner> partners;
    const int key = st.columnIndex(QStringLiteral("ID_FILTRY_PRZYCH"));
    const int text = st.columnIndex(QStringLiteral("OPIS"));
    for (; !st.atEnd(); st.next())
        partners.push_back({st.integer(key), st.string(text)});
    if (partners.empty())
        partners.push_back({0, QStringLiteral("Brak")});
    return partners;
}
