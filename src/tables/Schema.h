#pragma once

#include <QStringList>

class Connection;

// The schema of the suite's database (schema.sql, compiled in).
namespace Schema {

QString text();
// The statements of a script, one per entry: comment lines dropped and
// isql's SET TERM honoured, so trigger bodies stay whole.
QStringList splitStatements(const QString &script);
// Runs every statement of the schema on an empty database; throws DbError.
void apply(Connection &connection);
// Creates a new database file and applies the schema to it; never
// overwrites an existing file. The schema's hundreds of statements each
// commit, so they run with the disk writes deferred; the finished database
// writes through (ForcedWrites::On) unless it is a throw-away copy.
enum class ForcedWrites { On, Off };
void createDatabase(const QString &target, ForcedWrites finished = ForcedWrites::On);

} // namespace Schema
