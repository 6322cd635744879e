#include "RevenueAccounts.h"

namespace RevenueAccounts {

namespace {

constexpr int DomesticHaulage = 0;
constexpr int DomesticForwarding = 1;

} // namespace

const std::vector<Account> &all()
{
    static const std::vector<Account> accounts{
        {QStringLiteral("700-11"), QStringLiteral("Przychody - transport krajowy")},
        {QStringLiteral("700-12"), QStringLiteral("Przychody - spedycja krajowa")},
        {QStringLiteral("703-11"), QStringLiteral("Przychody - transport zagraniczny")},
        {QStringLiteral("703-12"), QStringLiteral("Przychody - spedycja zagraniczna")},
        {QStringLiteral("7001111"), QStringLiteral("Przychody ze sprzedaży - oddział")},
        {QStringLiteral("702-11"), QStringLiteral("Przychody - przewozy specjalistyczne")},
        {QStringLiteral("708-111"), QStringLiteral("Przychody - sprzedaż stacji obsługi")},
    };
    return accounts;
}

int defaultIndex(bool ownFleet)
{
    return ownFleet ? DomesticHaulage : DomesticForwarding;
}

} // namespace RevenueAccounts
