#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

class RowTexts;

// A list row's texts in one allocation: the number of cells and where each
// one ends, then the cells themselves. A row of separate texts costs an
// allocation and a header per cell; a list of 100,000 rows keeps a third
// of that memory this way.
class PackedTexts
{
public:
    PackedTexts() = default;
    explicit PackedTexts(const QStringList &cells);
    explicit PackedTexts(const RowTexts &cells);

    int count() const { return m_data.isEmpty() ? 0 : m_data.front().unicode() & CountMask; }
    // Empty for a cell the row does not have.
    QStringView cell(int index) const;
    QStringList toList() const;

private:
    static constexpr char16_t WideEnds = 0x8000;
    static constexpr char16_t CountMask = 0x7FFF;

    template <class Cells> void pack(const Cells &cells, int count, qsizetype length);
    bool wide() const { return m_data.front().unicode() & WideEnds; }
    qsizetype end(int index) const;

    QString m_data;
};
