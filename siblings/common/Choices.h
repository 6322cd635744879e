#pragma once

#include <QHash>
#include <QString>

#include <functional>
#include <vector>

class Connection;

// A record of another table offered by name: the entries of a drop-down
// list of an editor, the names a register shows for keys.
struct Choice
{
    int key = 0;
    QString text;
};

using ChoiceSource = std::function<std::vector<Choice>(Connection &)>;

namespace Choices {

// The rows of a statement whose first column is the key and second the
// text, in the statement's order. A failure throws DbError.
std::vector<Choice> query(Connection &connection, const QString &sql);
ChoiceSource fromQuery(const QString &sql);
ChoiceSource fixed(std::vector<Choice> choices);

} // namespace Choices

// Names by key, read once per listing of a register.
class NameLookup
{
public:
    explicit NameLookup(ChoiceSource source) : m_source(std::move(source)) {}

    void load(Connection &connection);
    // Empty for 0 and for a key that is not there.
    QString operator()(int key) const { return m_names.value(key); }

private:
    ChoiceSource m_source;
    QHash<int, QString> m_names;
};
