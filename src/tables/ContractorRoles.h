#pragma once

// Which side of an order a contractor stands on, kept in KONTRAHENCI.KIERUNEK:
// the client who orders the haulage, the carrier who does it, or both. The
// lists of clients and of carriers offer those of their role; 0, the value
// of records from before the roles, counts as both.
namespace ContractorRoles {

inline constexpr int Both = 0;
inline constexpr int Client = 1;
inline constexpr int Carrier = 2;

inline bool isClient(int role)
{
    return role != Carrier;
}

inline bool isCarrier(int role)
{
    return role != Client;
}

} // namespace ContractorRoles
