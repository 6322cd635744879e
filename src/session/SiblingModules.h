#pragma once

#include <QString>
#include <QStringList>

struct SessionContext;

// The launchers of the suite's sibling modules. Each call loads the
// module's library, resolves the entry points of its row, calls one with
// the session context and unloads the library again.
class SiblingModules
{
public:
    // The registers whose selection window a caller can open.
    enum class Register { Drivers, Places, Cities, Vehicles, Trailers, Contractors };

    // appPath is the application directory (without a trailing separator);
    // the session's values are read at each call.
    SiblingModules(const QString &appPath, const SessionContext &context);

    // Opens the register's selection window with the key the caller shows
    // (0 for none). Returns the sibling's result (1 = a record was chosen,
    // its key then in selectedID); 0 with selectedID untouched when the
    // library is missing.
    int select(Register which, int currentID, int &selectedID) const;

    // Run_EdytujKarte(cardID, Database, Transaction); false when the library
    // is missing.
    bool editRoadCard(int cardID) const;

    // The scheduler's two windows: the calendar (Run_Terminarz) and the
    // list of appointments (Run_PokazTerminy).
    enum class SchedulerView { Calendar, Appointments };

    // Calls the view's entry with (UserID, Database, Transaction, 0); false
    // when the library is missing.
    bool showScheduler(SchedulerView view) const;

    // The library file (without suffix) and the entry points resolved for
    // a register's selection, the selection entry first.
    static QString libraryName(Register which);
    static QStringList entryNames(Register which);

private:
    QString m_appPath;
    const SessionContext &m_context;
};
