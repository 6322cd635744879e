#pragma once

#include <QIcon>
#include <QList>
#include <QObject>
#include <QSize>

// Small pictures of a list, addressed by index (-1 for none): row icons and
// the sort mark of a column.
class TImageList : public QObject
{
    Q_OBJECT

public:
    explicit TImageList(QSize size, QObject *parent = nullptr);

    QSize size() const { return m_size; }
    int add(const QIcon &icon);
    int count() const { return static_cast<int>(m_icons.size()); }
    // An empty icon for an index outside the list.
    QIcon icon(int index) const;

    // The upward arrow that marks the column a list is sorted by.
    static QIcon sortMark(QSize size);

private:
    QSize m_size;
    QList<QIcon> m_icons;
};
