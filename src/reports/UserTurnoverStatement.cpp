#include "UserTurnoverStatement.h"

#include "GroupedLines.h"

#include <map>

StatementLayout UserTurnoverStatement::layout(const ReportPeriod &period)
{
    return {QStringLiteral("Zestawienie stawek na spedytora\\dysponenta") + period.text(),
            QStringLiteral("Spedytor"),
            {{"Miesiąc", 44},
             {"Liczba zleceń", 24, StatementColumn::Count},
             {"Przychód", 30, StatementColumn::Money},
             {"Koszt", 30, StatementColumn::Money},
             {"Zysk", 30, StatementColumn::Money},
             {"Marża", 24, StatementColumn::Margin, Profit, Cost}},
            false,
            true};
}

StatementData UserTurnoverStatement::read(Connection &connection, const ReportPeriod &period,
                                          int user)
{
    PeriodOrders orders{period, user ? PeriodOrders::User : PeriodOrders::Anyone, user};
    return build(orders.read(connection), period);
}

StatementData UserTurnoverStatement::build(const std::vector<PeriodOrder> &orders,
                                           const ReportPeriod &period)
{
    struct Month
    {
        int orders = 0;
        double revenue = 0.0;
        double cost = 0.0;
    };
    struct User
    {
        QString name;
        std::map<QDate, Month> months;
    };
    std::map<int, User> users;
    MonthlyFigures chart(period.from, period.to);
    for (const PeriodOrder &o : orders) {
        const QDate day = o.date.date();
        User &user = users[o.user];
        user.name = o.userName.isEmpty() ? StatementTable::NoUser : o.userName;
        Month &month = user.months[QDate(day.year(), day.month(), 1)];
        ++month.orders;
        month.revenue += o.revenue;
        month.cost += o.cost;
        chart.add(day, o.revenue, o.cost);
    }
    GroupedLines groups;
    for (const auto &[key, user] : users) {
        for (const auto &[first, m] : user.months) {
            groups.add(key, user.name, 0.0,
                       {first.toString(QStringLiteral("yyyy-MM")), m.orders, m.revenue, m.cost,
                        m.revenue - m.cost, QVariant()});
        }
    }
    return {groups.byTitle(), chart.months()};
}
