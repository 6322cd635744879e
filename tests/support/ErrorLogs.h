#pragma once

#include <QString>
#include <QStringList>

// Every value logged today in an error log of the current directory (the
// test database's directory while one is open).
QStringList loggedToday(const QString &file);
