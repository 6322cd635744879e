#include "StatementCache.h"

#include "Statement.h"

StatementCache::StatementCache(Connection &connection) : m_connection(connection) {}

StatementCache::~StatementCache() = default;

Statement &StatementCache::statement(const QStringList &lines)
{
    const QString key = lines.join(QLatin1Char('\n'));
    std::shared_ptr<Statement> &kept = m_statements[key];
    if (!kept) {
        kept = std::make_shared<Statement>(m_connection);
        for (const QString &line : lines)
            kept->add(line);
    }
    return *kept;
}
