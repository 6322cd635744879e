#pragma once

#include <QString>

#include <functional>

// The demo database of this user: a file in the user's data directory,
// created from the schema and seeded the first time it is asked for.
namespace DemoDatabase {

QString defaultPath();

// Returns the path; reports what it does through progress. Throws DbError.
// A half-made file (an earlier run stopped while seeding) is made again.
QString ensure(const std::function<void(const QString &)> &progress);

} // namespace DemoDatabase
