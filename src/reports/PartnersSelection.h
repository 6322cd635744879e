#pragma once

#include <QDate>
#include <QString>

#include <optional>
#include <vector>

class Connection;
class Statement;

// What the partners report lists: invoiced incoming orders of a period of
// invoice dates (both days included), domestic, foreign or both, carried
// by the company itself, by other carriers or by anyone, of one partner
// (a value of the orders' first filter).
//
// The partner is compared whenever one is chosen, also when "Pokaż
// wszystkie" is ticked: the tick only leaves the partner out of the title.
// Key 0 ("Brak", when no partner is defined) keeps the orders without one.
struct PartnersSelection
{
    enum Region { AllRegions, Domestic, Foreign };
    enum Executor { AnyExecutor, OwnCompany, OtherCarriers };

    QDate from;
    QDate to;
    // The texts of the dialog's date fields, as the title repeats them.
    QString fromText;
    QString toText;
    Region region = AllRegions;
    Executor executor = AnyExecutor;
    std::optional<int> partner;   // FILTRY_PRZYCH key; none when nothing is chosen
    QString partnerText;
    bool showAll = false;         // "Pokaż wszystkie"

    // The statement over VRAPORT_WSPOLNICY, bound and ready to run.
    // ownShortName: the company's own short name, the carrier the view
    // names for its own haulage.
    void prepare(Statement &statement, const QString &ownShortName) const;
    QString title() const;

    // The short name of the company's own contractor (IDWłaściciela);
    // empty when there is no such contractor.
    static QString ownShortName(Connection &connection);

    // The same day a calendar month earlier, the month's last day where
    // that month is shorter.
    static QDate monthBefore(QDate day);

    struct Partner
    {
        int key = 0;
        QString text;
    };
    // The values of the orders' first filter, as the query gives them;
    // "Brak" with key 0 when there is none. Throws DbError.
    static std::vector<Partner> partners(Connection &connection);
};
