#pragma once

#include "StatementTable.h"

#include <QString>

#include <map>
#include <vector>

// Lines gathered by the group they belong to (a client, a carrier, a
// user), each group weighed by what its lines add up to, so that the
// groups can be put in order; the lines of a group keep the order they
// came in.
class GroupedLines
{
public:
    void add(int key, const QString &title, double weight, QVariantList values);

    // The groups with the largest weight first; equal weights by title.
    std::vector<StatementLine> byWeightDescending() const;
    // The groups by title, then key.
    std::vector<StatementLine> byTitle() const;

private:
    struct Group
    {
        QString title;
        double weight = 0.0;
        std::vector<StatementLine> lines;
    };
    std::vector<StatementLine> flatten(std::vector<const Group *> order) const;

    std::map<int, Group> m_groups;
};
