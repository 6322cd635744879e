#include "GroupedLines.h"

#include <QCollator>
#include <QLocale>

#include <algorithm>

namespace {

bool titleBefore(const QString &a, const QString &b)
{
    static const QCollator collator{QLocale(QLocale::Polish, QLocale::Poland)};
    return collator.compare(a, b) < 0;
}

} // namespace

void GroupedLines::add(int key, const QString &title, double weight, QVariantList values)
{
    Group &group = m_groups[key];
    group.title = title;
    group.weight += weight;
    group.lines.push_back({title, std::move(values), key});
}

std::vector<StatementLine> GroupedLines::flatten(std::vector<const Group *> order) const
{
    std::vector<StatementLine> lines;
    for (const Group *group : order)
        lines.insert(lines.end(), group->lines.begin(), group->lines.end());
    return lines;
}

std::vector<StatementLine> GroupedLines::byWeightDescending() const
{
    std::vector<const Group *> order;
    for (const auto &[key, group] : m_groups)
        order.push_back(&group);
    std::stable_sort(order.begin(), order.end(), [](const Group *a, const Group *b) {
        if (a->weight != b->weight)
            return a->weight > b->weight;
        return titleBefore(a->title, b->title);
    });
    return flatten(std::move(order));
}

std::vector<StatementLine> GroupedLines::byTitle() const
{
    std::vector<const Group *> order;
    for (const auto &[key, group] : m_groups)
        order.push_back(&group);
    std::stable_sort(order.begin(), order.end(), [](const Group *a, const Group *b) {
        return titleBefore(a->title, b->title);
    });
    return flatten(std::move(order));
}
