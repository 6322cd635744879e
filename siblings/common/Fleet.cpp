#include "Fleet.h"

#include "Statement.h"

#include <QDate>

using namespace Qt::StringLiterals;

ChoiceSource Fleet::drivers()
{
    return Choices::fromQuery(u"SELECT ID_KIEROWCA, TRIM(COALESCE(IMIE, '') || ' ' || "
                              "COALESCE(NAZWISKO, '')) FROM KIEROWCY ORDER BY NAZWISKO, IMIE"_s);
}

ChoiceSource Fleet::vehicles()
{
    return Choices::fromQuery(u"SELECT ID_POJAZDU, NR_REJ FROM POJAZDY ORDER BY NR_REJ"_s);
}

ChoiceSource Fleet::trailers()
{
    return Choices::fromQuery(u"SELECT ID_NACZEPY, NR_REJ FROM NACZEPY ORDER BY NR_REJ"_s);
}

Problem Fleet::registrationOrYearProblem(Connection &connection, const QString &table,
                                         const QString &key, int ownKey,
                                         const QString &registration, int year)
{
    // Table and key names come from the program; the registration is bound.
    Statement st(connection);
    st.add(u"SELECT COUNT(*) FROM "_s + table);
    st.add(u"WHERE UPPER(TRIM(NR_REJ)) = UPPER(CAST(:aNR_REJ AS VARCHAR(255)))"_s);
    st.add(u"AND "_s + key + u" <> :aKey"_s);
    st.bind(u"aNR_REJ"_s, registration.trimmed());
    st.bind(u"aKey"_s, ownKey);
    st.exec();
    if (st.integer(0) != 0)
        return FieldProblem{u"edNrRej"_s,
                            u"Numer rejestracyjny %1 ma już inny pojazd tego rejestru; sprawdź "
                            "numer albo popraw tamten zapis."_s.arg(registration.trimmed())};
    const int latest = QDate::currentDate().year() + 1;
    if (year == 0 || (year >= 1950 && year <= latest))
        return std::nullopt;
    return FieldProblem{u"seRokProd"_s,
                        u"Rok produkcji %1 jest nieprawdopodobny: podaj rok od 1950 do %2 "
                        "albo 0, gdy nie jest znany."_s.arg(year).arg(latest)};
}
