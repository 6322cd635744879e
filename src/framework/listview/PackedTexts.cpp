#include "PackedTexts.h"

#include "RowTexts.h"

#include <limits>

namespace {

constexpr qsizetype NarrowLimit = std::numeric_limits<char16_t>::max();

} // namespace

template <class Cells>
void PackedTexts::pack(const Cells &cells, int count, qsizetype length)
{
    Q_ASSERT(count <= CountMask);
    const bool wideEnds = length > NarrowLimit;
    const qsizetype header = 1 + (wideEnds ? 2 : 1) * qsizetype(count);
    m_data.resize(header + length);
    QChar *out = m_data.data();
    *out++ = QChar(char16_t(count | (wideEnds ? WideEnds : 0)));
    qsizetype at = 0;
    for (int i = 0; i < count; ++i) {
        at += cells(i).size();
        if (wideEnds) {
            *out++ = QChar(char16_t(at & 0xFFFF));
            *out++ = QChar(char16_t(at >> 16));
        } else {
            *out++ = QChar(char16_t(at));
        }
    }
    for (int i = 0; i < count; ++i) {
        const QStringView cell = cells(i);
        std::copy(cell.begin(), cell.end(), out);
        out += cell.size();
    }
}

PackedTexts::PackedTexts(const QStringList &cells)
{
    qsizetype length = 0;
    for (const QString &cell : cells)
        length += cell.size();
    pack([&](int i) { return QStringView(cells[i]); }, int(cells.size()), length);
}

PackedTexts::PackedTexts(const RowTexts &cells)
{
    pack([&](int i) { return cells.cell(i); }, cells.cells(), cells.length());
}

qsizetype PackedTexts::end(int index) const
{
    if (!wide())
        return m_data[1 + index].unicode();
    return m_data[1 + 2 * index].unicode() | qsizetype(m_data[2 + 2 * index].unicode()) << 16;
}

QStringView PackedTexts::cell(int index) const
{
    const int cells = count();
    if (index < 0 || index >= cells)
        return {};
    const qsizetype header = 1 + (wide() ? 2 : 1) * qsizetype(cells);
    const qsizetype start = index == 0 ? 0 : end(index - 1);
    return QStringView(m_data).mid(header + start, end(index) - start);
}

QStringList PackedTexts::toList() const
{
    QStringList cells;
    cells.reserve(count());
    for (int i = 0; i < count(); ++i)
        cells << cell(i).toString();
    return cells;
}
