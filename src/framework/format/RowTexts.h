#pragma once

#include <QString>
#include <QStringView>

#include <vector>

// The texts of one list row while it is being built: the cells one after
// the other in one text. Cleared and filled again for every row, it keeps
// its storage, so building a row allocates nothing once it has grown.
class RowTexts
{
public:
    void clear()
    {
        m_text.truncate(0);
        m_ends.clear();
    }
    void add(QStringView cell)
    {
        m_text += cell;
        endCell();
    }
    // The text the current cell is written onto; endCell() closes the cell.
    QString &text() { return m_text; }
    void endCell() { m_ends.push_back(m_text.size()); }

    int cells() const { return int(m_ends.size()); }
    qsizetype length() const { return m_text.size(); }
    QStringView cell(int index) const
    {
        const qsizetype start = index == 0 ? 0 : m_ends[std::size_t(index) - 1];
        return QStringView(m_text).mid(start, m_ends[std::size_t(index)] - start);
    }

private:
    QString m_text;
    std::vector<qsizetype> m_ends;
};
