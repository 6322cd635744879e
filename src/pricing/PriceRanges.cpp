#include "PriceRanges.h"

#include "Statement.h"
#include "TCenniki_kraj_kolumnyObj.h"
#include "TCenniki_kraj_wierszeObj.h"

namespace {

// What differs between the two axes: the table object and its columns.
template <class Range>
struct Axis;

template <>
struct Axis<TCenniki_kraj_wierszeObj>
{
    static constexpr auto Key = &TCenniki_kraj_wierszeObj::ID_CENNIKI_KRAJ_WIERSZE;
    static constexpr auto From = &TCenniki_kraj_wierszeObj::ZAKRES_WOD;
    static constexpr auto To = &TCenniki_kraj_wierszeObj::ZAKRES_WDO;
};

template <>
struct Axis<TCenniki_kraj_kolumnyObj>
{
    static constexpr auto Key = &TCenniki_kraj_kolumnyObj::ID_CENNIKI_KRAJ_KOLUMNY;
    static constexpr auto From = &TCenniki_kraj_kolumnyObj::ZAKRES_KOD;
    static constexpr auto To = &TCenniki_kraj_kolumnyObj::ZAKRES_KDO;
};

QString orderClause(RangeAxis axis)
{
    return axis == RangeAxis::Kilometres ? QStringLiteral("order by ZAKRES_WDO")
                                         : QStringLiteral("order by ZAKRES_KDO");
}

template <class Range>
int addTo(Connection &connection, int upperBound)
{
    Range range(connection);
    range.*Axis<Range>::To = upperBound;
    range.Insert();
    return range.*Axis<Range>::Key;
}

template <class Range>
PriceRange loadFrom(Connection &connection, int key)
{
    using A = Axis<Range>;
    const Range range = Range(connection).SelectById(key);
    return {range.*A::Key, range.*A::From, range.*A::To};
}

template <class Range>
void changeIn(Connection &connection, int key, int upperBound)
{
    Range range = Range(connection).SelectById(key);
    if (range.*Axis<Range>::Key == 0)
        return;
    range.*Axis<Range>::To = upperBound;
    range.Update();
}

template <class Range>
void removeFrom(Connection &connection, int key)
{
    Range range(connection);
    range.*Axis<Range>::Key = key;
    range.Delete();
}

template <class Range>
void renumber(Connection &connection, RangeAxis axis)
{
    using A = Axis<Range>;
    int next = 0;
    for (Range &range : Range(connection).SelectClause(orderClause(axis))) {
        range.*A::From = next;
        range.Update();
        next = range.*A::To + 1;
    }
}

} // namespace

QString PriceRanges::unit(RangeAxis axis)
{
    return axis == RangeAxis::Kilometres ? QStringLiteral(" km") : QStringLiteral(" kg");
}

QString PriceRanges::editorListing(RangeAxis axis)
{
    return axis == RangeAxis::Kilometres
        ? QStringLiteral("Select * from CENNIKI_KRAJ_WIERSZE order by ZAKRES_WDO")
        : QStringLiteral("Select * from CENNIKI_KRAJ_KOLUMNY order by ZAKRES_KDO");
}

QString PriceRanges::gridListing(RangeAxis axis)
{
    return axis == RangeAxis::Kilometres
        ? QStringLiteral("select * from CENNIKI_KRAJ_WIERSZE order by ZAKRES_WDO")
        : QStringLiteral("select * from CENNIKI_KRAJ_KOLUMNY order by ZAKRES_KDO");
}

std::vector<PriceRange> PriceRanges::list(Connection &connection, RangeAxis axis,
                                          const QString &listing)
{
    const bool rows = axis == RangeAxis::Kilometres;
    Statement st(connection);
    st.add(listing);
    st.exec();
    const int key = st.columnIndex(rows ? QStringLiteral("ID_CENNIKI_KRAJ_WIERSZE")
                                        : QStringLiteral("ID_CENNIKI_KRAJ_KOLUMNY"));
    const int from
        = st.columnIndex(rows ? QStringLiteral("ZAKRES_WOD") : QStringLiteral("ZAKRES_KOD"));
    const int to
        = st.columnIndex(rows ? QStringLiteral("ZAKRES_WDO") : QStringLiteral("ZAKRES_KDO"));
    std::vector<PriceRange> ranges;
    for (; !st.atEnd(); st.next())
        ranges.push_back({st.integer(key), st.integer(from), st.integer(to)});
    return ranges;
}

QString PriceRanges::duplicateTest(RangeAxis axis, int exceptKey)
{
    const bool rows = axis == RangeAxis::Kilometres;
    QString test = rows ? QStringLiteral("select count(*) as ilosc from CENNIKI_KRAJ_WIERSZE "
                                         "where ZAKRES_WDO=:wartosc")
                        : QStringLiteral("select count(*) as ilosc from CENNIKI_KRAJ_KOLUMNY "
                                         "where ZAKRES_KDO=:wartosc");
    if (exceptKey > 0) {
        test += rows ? QStringLiteral(" AND ID_CENNIKI_KRAJ_WIERSZE<>")
                     : QStringLiteral(" AND ID_CENNIKI_KRAJ_KOLUMNY<>");
        test += QString::number(exceptKey);
    }
    return test;
}

bool PriceRanges::exists(Connection &connection, const QString &duplicateTest, int upperBound)
{
    Statement st(connection);
    st.add(duplicateTest);
    st.bind(QStringLiteral("wartosc"), upperBound);
    st.exec();
    return st.integer(QStringLiteral("ILOSC")) >= 1;
}

PriceRange PriceRanges::load(Connection &connection, RangeAxis axis, int key)
{
    return axis == RangeAxis::Kilometres ? loadFrom<TCenniki_kraj_wierszeObj>(connection, key)
                                         : loadFrom<TCenniki_kraj_kolumnyObj>(connection, key);
}

int PriceRanges::totalCount(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("select (select count(*) from CENNIKI_KRAJ_KOLUMNY)+(select count(*) "
                          "from CENNIKI_KRAJ_WIERSZE) as ilosc from rdb$database"));
    st.exec();
    return st.integer(QStringLiteral("ILOSC"));
}

int PriceRanges::add(Connection &connection, RangeAxis axis, int upperBound)
{
    const int key = axis == RangeAxis::Kilometres
        ? addTo<TCenniki_kraj_wierszeObj>(connection, upperBound)
        : addTo<TCenniki_kraj_kolumnyObj>(connection, upperBound);
    recomputeLowerBounds(connection, axis);
    return key;
}

void PriceRanges::change(Connection &connection, RangeAxis axis, int key, int upperBound)
{
    if (axis == RangeAxis::Kilometres)
        changeIn<TCenniki_kraj_wierszeObj>(connection, key, upperBound);
    else
        changeIn<TCenniki_kraj_kolumnyObj>(connection, key, upperBound);
    recomputeLowerBounds(connection, axis);
}

int PriceRanges::usage(Connection &connection, RangeAxis axis, int key)
{
    Statement st(connection);
    st.add((axis == RangeAxis::Kilometres
                ? QStringLiteral("select count(*) as ilosc from CENNIKI_KRAJ where KILOMETRY=")
                : QStringLiteral("select count(*) as ilosc from CENNIKI_KRAJ where KILOGRAMY="))
           + QString::number(key));
    st.exec();
    return st.integer(QStringLiteral("ILOSC"));
}

void PriceRanges::remove(Connection &connection, RangeAxis axis, int key)
{
    if (axis == RangeAxis::Kilometres)
        removeFrom<TCenniki_kraj_wierszeObj>(connection, key);
    else
        removeFrom<TCenniki_kraj_kolumnyObj>(connection, key);
    recomputeLowerBounds(connection, axis);
}

void PriceRanges::recomputeLowerBounds(Connection &connection, RangeAxis axis)
{
    if (axis == RangeAxis::Kilometres)
        renumber<TCenniki_kraj_wierszeObj>(connection, axis);
    else
        renumber<TCenniki_kraj_kolumnyObj>(connection, axis);
}
