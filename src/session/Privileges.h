#pragma once

#include <QString>

class Connection;
class QObject;

// Rights of a user per form, kept by the suite's administration module in
// FORMS (one row per form class name) and USER_ACCESS (per user and form).
namespace Privileges {

// The kinds a caller asks about. Delete is 3 and edit is 4, unlike the
// order of the columns in USER_ACCESS.
constexpr int Run = 1;
constexpr int Add = 2;
constexpr int Delete = 3;
constexpr int Edit = 4;

inline const QString RefusalCaption = QStringLiteral("Uprawnienia");
inline const QString RefusalText =
    QStringLiteral("Uprawnienia do tej operacji nie zostały nadane przez administratora.");

// The low byte of the privilege column of the first matching row decides;
// no row denies. The form's class name is compared with FORMS.NAZWA exactly,
// letter case included. A kind outside 1-4, or a database failure, throws
// DbError.
bool check(Connection &connection, int kind, const QString &formClass, int userID);

// FORMS.ID_FORMATKI of a form class, compared without regard to letter case;
// 0 when there is none. A database failure throws DbError.
int formID(Connection &connection, const QString &formClass);

// The class name a form is known by in FORMS: its C++ class name. The form's
// class must carry Q_OBJECT, or the name of its nearest such base is taken.
QString formClass(const QObject *form);

// What every form calls before adding, editing, deleting or closing: asks
// for the session user's privilege on the form and, when it is not given,
// shows the refusal (warning icon) and returns false. A database failure is
// shown as an error and also refuses.
bool require(int kind, const QObject *form);

} // namespace Privileges
