#include "SessionFixture.h"

#include "SessionContext.h"

SessionFixture::SessionFixture(int userId)
{
    setUser(userId);
}

SessionFixture::~SessionFixture()
{
    setSession(0, nullptr, nullptr);
}

void SessionFixture::setUser(int userId)
{
    setSession(userId, &db.connection(), &transaction);
}
