#pragma once

#include "FirebirdFailure.h"
#include "FirebirdLogin.h"

#include <QStringList>

#include <optional>

// Firebird's own backup program, run once. The login to a server goes in
// its environment (ISC_USER, ISC_PASSWORD), never on its command line,
// where every user of the machine could read it; a database file is opened
// with the embedded engine and this program's engine configuration, so it
// may be backed up while others work in it.
class Gbak
{
public:
    explicit Gbak(std::optional<FirebirdLogin> login) : m_login(std::move(login)) {}

    // Throws DbError with what the failure means (FirebirdFailure).
    void run(const QStringList &arguments, const FirebirdFailure &failure) const;

private:
    std::optional<FirebirdLogin> m_login;
};
