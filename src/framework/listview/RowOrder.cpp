#include "RowOrder.h"

#include "Format.h"
#include "TListViewModel.h"

#include <QCollator>
#include <QHash>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// Bottom-up merge sort that only asks "is the left one greater?": taking
// the left row unless it is greater keeps equal rows in order, and is well
// defined even for the lopsided comparisons of currency columns.
template <class Greater>
std::vector<int> mergeSorted(int count, Greater greater)
{
    std::vector<int> order(static_cast<size_t>(count));
    std::iota(order.begin(), order.end(), 0);
    std::vector<int> buffer(order.size());
    for (size_t width = 1; width < order.size(); width *= 2) {
        for (size_t left = 0; left < order.size(); left += 2 * width) {
            const size_t middle = std::min(left + width, order.size());
            const size_t right = std::min(left + 2 * width, order.size());
            size_t i = left, j = middle, out = left;
            while (i < middle && j < right)
                buffer[out++] = greater(order[i], order[j]) ? order[j++] : order[i++];
            while (i < middle)
                buffer[out++] = order[i++];
            while (j < right)
                buffer[out++] = order[j++];
        }
        order.swap(buffer);
    }
    return order;
}

// Collation is the costly part of a text sort, so each distinct text is
// ranked once and rows then compare ranks. Texts the collator finds equal
// share a rank.
std::vector<int> textRanks(const TListViewModel &model, int column)
{
    const int rows = model.rows();
    QHash<QStringView, int> distinctIds;
    distinctIds.reserve(rows);
    std::vector<QStringView> distinct;
    std::vector<int> rowIds(static_cast<size_t>(rows));
    for (int row = 0; row < rows; ++row) {
        const QStringView text = model.textView(row, column);
        const auto found = distinctIds.constFind(text);
        if (found != distinctIds.constEnd()) {
            rowIds[row] = found.value();
            continue;
        }
        const int id = static_cast<int>(distinct.size());
        distinctIds.insert(text, id);
        distinct.push_back(text);
        rowIds[row] = id;
    }

    QCollator collator{QLocale()};
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::vector<QCollatorSortKey> keys;
    keys.reserve(distinct.size());
    for (const QStringView text : distinct)
        keys.push_back(collator.sortKey(text.toString()));
    std::vector<int> byKey(distinct.size());
    std::iota(byKey.begin(), byKey.end(), 0);
    std::sort(byKey.begin(), byKey.end(),
              [&](int a, int b) { return keys[a].compare(keys[b]) < 0; });

    std::vector<int> rankOfId(distinct.size());
    int rank = 0;
    for (size_t i = 0; i < byKey.size(); ++i) {
        if (i > 0 && keys[byKey[i - 1]].compare(keys[byKey[i]]) != 0)
            ++rank;
        rankOfId[byKey[i]] = rank;
    }
    std::vector<int> ranks(static_cast<size_t>(rows));
    for (int row = 0; row < rows; ++row)
        ranks[row] = rankOfId[rowIds[row]];
    return ranks;
}

struct TypedValue
{
    bool empty = true;
    double value = 0.0;
};

std::vector<TypedValue> typedValues(const TListViewModel &model, int column, SortKind kind)
{
    std::vector<TypedValue> values(static_cast<size_t>(model.rows()));
    for (int row = 0; row < model.rows(); ++row) {
        const QString text = model.text(row, column);
        if (text.isEmpty())
            continue;
        if (kind == SortKind::Date) {
            const auto parsed = Format::parseDateTime(text);
            if (!parsed)
                throw SortConversionError(text, kind);
            values[row] = {false, static_cast<double>(parsed->toMSecsSinceEpoch())};
            continue;
        }
        const auto parsed = Format::parseNumber(text);
        if (!parsed)
            throw SortConversionError(text, kind);
        // A currency value keeps four decimals.
        const double value = kind == SortKind::Currency ? std::round(*parsed * 10000.0) / 10000.0
                                                        : *parsed;
        values[row] = {false, value};
    }
    return values;
}

} // namespace

SortConversionError::SortConversionError(const QString &value, SortKind kind)
    : std::runtime_error(value.toStdString()), m_value(value), m_kind(kind)
{
}

QString SortConversionError::message() const
{
    if (m_kind == SortKind::Date)
        return QStringLiteral("'%1' nie jest poprawną datą.").arg(m_value);
    return QStringLiteral("'%1' nie jest poprawną wartością liczbową.").arg(m_value);
}

std::vector<int> sortedRows(const TListViewModel &model, int column, SortKind kind)
{
    if (kind == SortKind::Text) {
        const std::vector<int> ranks = textRanks(model, column);
        return mergeSorted(model.rows(), [&](int a, int b) { return ranks[a] > ranks[b]; });
    }
    const std::vector<TypedValue> values = typedValues(model, column, kind);
    const bool roundUpper = kind == SortKind::Currency;
    return mergeSorted(model.rows(), [&](int a, int b) {
        if (values[a].empty)
            return false;
        if (values[b].empty)
            return true;
        // Rounded half to even, as the suite's currency rounding does.
        const double upper = roundUpper ? std::nearbyint(values[a].value) : values[a].value;
        return upper > values[b].value;
    });
}
