#include "Privileges.h"

#include "Connection.h"
#include "DbError.h"
#include "ErrorLog.h"
#include "MessageService.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "Statement.h"

#include <QMetaObject>
#include <QObject>

namespace {

// The column a kind reads; empty for a kind that has none.
QString privilegeColumn(int kind)
{
    switch (kind) {
    case Privileges::Run:
        return QStringLiteral("PRIVIL_RUN");
    case Privileges::Add:
        return QStringLiteral("PRIVIL_ADD");
    case Privileges::Delete:
        return QStringLiteral("PRIVIL_DELETE");
    case Privileges::Edit:
        return QStringLiteral("PRIVIL_EDIT");
    default:
        return QString();
    }
}

} // namespace

bool Privileges::check(Connection &connection, int kind, const QString &formClass, int userID)
{
    Statement st(connection);
    // An unknown kind leaves only the sub-select, which the database refuses.
    const QString column = privilegeColumn(kind);
    if (!column.isEmpty()) {
        st.add(QStringLiteral("SELECT ") + column
               + QStringLiteral(" FROM USER_ACCESS WHERE ID_USER = :aUserID AND ID_FORMATKI IN "));
    }
    st.add(QStringLiteral("(SELECT ID_FORMATKI FROM FORMS WHERE NAZWA=:aFrmObj)"));
    st.bind(QStringLiteral("aUserID"), userID);
    st.bind(QStringLiteral("aFrmObj"), formClass);
    st.exec();
    return (st.integer(0) & 0xFF) != 0;
}

int Privileges::formID(Connection &connection, const QString &formClass)
{
    Statement st(connection);
    st.add(QStringLiteral("SELECT ID_FORMATKI FROM FORMS WHERE Upper(NAZWA)=:aNazwa"));
    st.bind(QStringLiteral("aNazwa"), formClass.toUpper());
    st.exec();
    return st.integer(0);
}

QString Privileges::formClass(const QObject *form)
{
    return form ? QString::fromLatin1(form->metaObject()->className()) : QString();
}

bool Privileges::require(int kind, const QObject *form)
{
    const SessionContext &context = session();
    try {
        if (!context.Database)
            throw DbError(QStringLiteral("Brak połączenia z bazą danych"));
        if (check(*context.Database, kind, formClass(form), context.UserID))
            return true;
        Messages::inform(RefusalCaption, RefusalText, MessageService::Icon::Warning);
    } catch (const DbError &error) {
        ErrorLog::write(ErrorLog::HaulixErrors, error.message());
        Messages::error(FailureText::message(QStringLiteral("Nie można sprawdzić uprawnień"),
                                             FailureText::advice(error.kind(),
                                                                 ErrorLog::HaulixErrors)));
    }
    return false;
}
