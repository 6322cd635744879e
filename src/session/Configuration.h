#pragma once

#include <QString>

class Connection;

// Typed settings of table KONFIGURACJA, one row per setting keyed by POLE;
// TYP names the column holding the value ("I" VALUE_INT, "S" VALUE_STRING,
// "F" VALUE_FLOAT, "D" VALUE_DATE, "B" VALUE_INT as a truth value).
//
// The setting's name is written into the statement text, not bound: the
// names come from the program's own code only, never from anything a user
// types. GetConfigInt and GetConfigString compare POLE exactly; the float and
// truth-value getters compare Upper(POLE) and so expect the name in upper
// case. That difference is old and other modules of the suite rely on it.
//
// A getter never fails: a missing row, an unknown TYP, a database error or a
// value that does not convert gives the getter's default (0, empty, false);
// errors are written to HaulixErrors.ini.
class Configuration
{
public:
    // A null connection makes every getter return its default.
    explicit Configuration(Connection *connection) : m_connection(connection) {}

    int GetConfigInt(const QString &name) const;
    QString GetConfigString(const QString &name) const;
    double GetConfigFloat(const QString &name) const;
    bool GetConfigBool(const QString &name) const;

private:
    Connection *m_connection;
};
