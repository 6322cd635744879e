#include "Reminders.h"

#include "ListTexts.h"
#include "Statement.h"

#include <QTime>

using namespace Qt::StringLiterals;

namespace {

using T = TTerminyObj;

QTime timeOf(const QString &text)
{
    QTime time = QTime::fromString(text, u"HH:mm"_s);
    if (!time.isValid())
        time = QTime::fromString(text, u"H:mm"_s);
    return time;
}

QString sqlDate(QDate day)
{
    return day.toString(Qt::ISODate);
}

std::vector<TableRegister<T>::ListColumn> columns()
{
    using Kind = RegisterModel::ColumnKind;
    return {
        {{u"Data"_s, 85, Kind::Date}, [](const T &r) { return ListTexts::date(r.DATA); }},
        {{u"Godzina"_s, 60}, [](const T &r) { return r.GODZINA; }},
        {{u"Treść"_s, 420}, [](const T &r) { return r.TRESC; }},
        {{u"Wykonane"_s, 70}, [](const T &r) { return ListTexts::yesNo(r.WYKONANE != 0); }},
    };
}

// Whole-day reminders come before the timed ones of their day.
const QString Order = u"ORDER BY DATA, GODZINA, ID_TERMINU"_s;

} // namespace

TableRegister<TTerminyObj>::Definition Reminders::month(int userID,
                                                        std::shared_ptr<QDate> firstDay)
{
    TableRegister<T>::Definition d;
    d.columns = columns();
    // Keys and dates the program made, no text a user typed.
    d.select = [userID, firstDay](Connection &connection) {
        return T(connection).SelectClause(
            u"WHERE ID_USER = %1 AND DATA >= '%2' AND DATA < '%3' "_s.arg(userID)
                .arg(sqlDate(*firstDay), sqlDate(firstDay->addMonths(1)))
            + Order);
    };
    return d;
}

TableRegister<TTerminyObj>::Definition Reminders::due(int userID, QDate today)
{
    TableRegister<T>::Definition d;
    d.columns = columns();
    d.select = [userID, today](Connection &connection) {
        return T(connection).SelectClause(
            u"WHERE ID_USER = %1 AND WYKONANE = 0 AND DATA < '%2' "_s.arg(userID)
                .arg(sqlDate(today.addDays(1)))
            + Order);
    };
    return d;
}

TableRecordEditing<TTerminyObj>::Definition Reminders::editing(int userID, QDate day)
{
    using namespace Fields;
    TableRecordEditing<T>::Definition d;
    d.groups = {{u"Termin"_s, 0}};
    d.fields = {
        {date(u"deData"_s, u"Data"_s, 0, true), &T::DATA},
        {text(u"edGodzina"_s, u"Godzina (GG:MM)"_s, 0, 5), &T::GODZINA},
        {text(u"edTresc"_s, u"Treść"_s, 0, 255, true), &T::TRESC},
        {flag(u"cbWykonane"_s, u"Wykonane"_s, 0), &T::WYKONANE},
    };
    d.checks = {[](const T &reminder, Connection &) { return check(reminder); }};
    d.defaults = [userID, day](T &reminder, Connection &) {
        reminder.DATA = DateTime::fromDate(day);
        reminder.ID_USER = userID;
    };
    d.beforeSave = [](T &reminder, Connection &) {
        if (!reminder.GODZINA.isEmpty())
            reminder.GODZINA = timeOf(reminder.GODZINA).toString(u"HH:mm"_s);
    };
    return d;
}

Problem Reminders::check(const TTerminyObj &reminder)
{
    if (reminder.GODZINA.isEmpty() || timeOf(reminder.GODZINA).isValid())
        return std::nullopt;
    return FieldProblem{u"edGodzina"_s,
                        u"Godzina %1 nie jest godziną: wpisz ją jako GG:MM (na przykład 09:30) "
                        "albo zostaw pole puste, gdy termin dotyczy całego dnia."_s
                            .arg(reminder.GODZINA)};
}

bool Reminders::setDone(Connection &connection, int key, bool done)
{
    Statement st(connection);
    st.add(u"UPDATE TERMINY SET WYKONANE = :aWYKONANE WHERE ID_TERMINU = :aID_TERMINU"_s);
    st.bind(u"aWYKONANE"_s, done ? 1 : 0);
    st.bind(u"aID_TERMINU"_s, key);
    st.exec();
    return st.rowsAffected() > 0;
}
