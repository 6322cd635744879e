#include "Choices.h"

#include "Statement.h"

std::vector<Choice> Choices::query(Connection &connection, const QString &sql)
{
    Statement st(connection);
    st.add(sql);
    st.exec();
    std::vector<Choice> choices;
    for (; !st.atEnd(); st.next())
        choices.push_back({st.integer(0), st.string(1)});
    return choices;
}

ChoiceSource Choices::fromQuery(const QString &sql)
{
    return [sql](Connection &connection) { return query(connection, sql); };
}

ChoiceSource Choices::fixed(std::vector<Choice> choices)
{
    return [choices = std::move(choices)](Connection &) { return choices; };
}

void NameLookup::load(Connection &connection)
{
    m_names.clear();
    for (const Choice &choice : m_source(connection))
        m_names.insert(choice.key, choice.text);
}
