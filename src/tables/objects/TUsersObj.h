#pragma once

#include "TableObject.h"

// Table USERS: users of the system: login, first name, surname, visibility flag, user group,
// address, postcode, town, lock flag, date of the last password change, password.
class TUsersObj : public TableObject<TUsersObj>
{
public:
    static constexpr TableShape Shape = TableShape::Short;
    static constexpr bool HasSelectById = true;
    static constexpr bool HasSelectOne = false;
    static constexpr MaxIdKind MaxId = MaxIdKind::None;
    static const TableDescription<TUsersObj> &description();

    explicit TUsersObj(Connection &connection) : TableObject(connection) {}

    int ID_USER = 0;
    QString LOGIN;
    QString IMIE;
    QString NAZWISKO;
    int VISIBLE = 0;
    int ID_GRUPY = 0;
    QString ADRES;
    QString KOD;
    QString MIASTO;
    int LOCK = 0;
    DateTime PASSCHANGED;
    QString PASS;
};
