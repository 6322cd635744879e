#include "UserCarrierInvoiceStatement.h"

#include "Format.h"
#include "GroupedLines.h"
#include "Money.h"
#include "Statement.h"

StatementLayout UserCarrierInvoiceStatement::layout(const ReportPeriod &period)
{
    return {QStringLiteral("Zestawienie faktur obcych na spedytora\\dysponenta") + period.text(),
            QStringLiteral("Spedytor"),
            {{"Zlecenie", 20},
             {"Przewoźnik", 45},
             {"Numer faktury", 40},
             {"Data wyst.", 22},
             {"Termin płatn.", 22},
             {"Kwota", 30, StatementColumn::Money},
             {"Zapłacono", 30, StatementColumn::Money},
             {"Pozostało", 30, StatementColumn::Money},
             {"Dni po terminie", 38}},
            true,
            false};
}

int UserCarrierInvoiceStatement::daysOverdue(const QDate &due, double remaining,
                                             const QDate &today)
{
    if (remaining < 0.005 || !due.isValid() || due >= today)
        return 0;
    return int(due.daysTo(today));
}

StatementData UserCarrierInvoiceStatement::read(Connection &connection,
                                                const ReportPeriod &period, int user,
                                                const QDate &today)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT z.NUMER, z.IDUSER, u.LOGIN, p.SKROT, z.NUMER_FAKT_PRZEW, "));
    st.add(QStringLiteral("z.DATA_FAKT_WYSTAWIENIA, z.DNI_FAKT, z.KWOTA_FAKT_PRZEW, "));
    st.add(QStringLiteral("z.ZAPLACONA_KWOTA, z.NRRAMPY FROM ZLECENIA_PRZYCH z "));
    st.add(QStringLiteral("LEFT JOIN USERS u ON u.ID_USER = z.IDUSER "));
    st.add(QStringLiteral("LEFT JOIN KONTRAHENCI p ON p.ID_KONTRAHENTA = z.IDPRZEWOZNIK "));
    st.add(QStringLiteral("WHERE z.KWOTA_FAKT_PRZEW > 0 "));
    st.add(QStringLiteral("AND z.DATA_FAKT_WYSTAWIENIA BETWEEN :aOd AND :aDo "));
    if (user != 0)
        st.add(QStringLiteral("AND z.IDUSER = :aIdUser "));
    st.add(QStringLiteral("ORDER BY z.DATA_FAKT_WYSTAWIENIA, z.NUMER, z.ID_ZLECENIA_PRZYCH"));
    st.bind(QStringLiteral("aOd"), period.start());
    st.bind(QStringLiteral("aDo"), period.end());
    if (user != 0)
        st.bind(QStringLiteral("aIdUser"), user);
    st.exec();
    GroupedLines groups;
    for (; !st.atEnd(); st.next()) {
        const QDate issued = st.dateTime(5).date();
        const QDate due = issued.isValid() ? issued.addDays(st.integer(6)) : QDate();
        const double amount = st.number(7);
        const double paid = st.integer(9) == 1 ? amount : st.number(8);
        const double remaining = Money::RoundTo2(amount - paid);
        const int late = daysOverdue(due, remaining, today);
        const QString login = st.string(2);
        groups.add(st.integer(1), login.isEmpty() ? StatementTable::NoUser : login, 0.0,
                   {QString::number(st.integer(0)).rightJustified(8, u'0'), st.string(3),
                    st.string(4), Format::date(issued), Format::date(due), amount, paid,
                    remaining, late > 0 ? QString::number(late) : QString()});
    }
    return {groups.byTitle(), {}};
}
