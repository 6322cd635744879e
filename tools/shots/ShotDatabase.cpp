#include "ShotDatabase.h"

#include "Schema.h"
#include "SessionContext.h"
#include "TUsersObj.h"
#include "TZlecenia_przychObj.h"

namespace {

struct DemoUser
{
    const char *login;
    const char *firstName;
    const char *surname;
};

constexpr DemoUser DemoUsers[] = {
    {"mwisniewska", "Magdalena", "Wiśniewska"},
    {"tzielinski", "Tomasz", "Zieliński"},
    {"kdabrowski", "Krzysztof", "Dąbrowski"},
    {"alewandowska", "Agnieszka", "Lewandowska"},
};

} // namespace

ShotDatabase::ShotDatabase()
{
    const QString path = m_dir.filePath(QStringLiteral("shots.fdb"));
    Schema::createDatabase(path, Schema::ForcedWrites::Off);
    m_connection.open(path);
    setSession(1, &m_connection, &m_transaction);

    int lastUser = 0;
    for (const DemoUser &demo : DemoUsers) {
        TUsersObj user(m_connection);
        user.LOGIN = QString::fromUtf8(demo.login);
        user.IMIE = QString::fromUtf8(demo.firstName);
        user.NAZWISKO = QString::fromUtf8(demo.surname);
        user.VISIBLE = 1;
        user.Insert();
        lastUser = user.ID_USER;
    }
    TZlecenia_przychObj order(m_connection);
    order.NUMER = 1207;
    order.DATA = DateTime::today();
    order.KWOTA = 3450.0;
    order.IDUSER = lastUser;
    order.Insert();
    m_orderKey = order.ID_ZLECENIA_PRZYCH;
}

ShotDatabase::~ShotDatabase()
{
    setSession(0, nullptr, nullptr);
    m_connection.close();
}
