#pragma once

#include "SessionFixture.h"
#include "TZlecenia_przychObj.h"
#include "TZlecenia_zbiorObj.h"

#include <functional>

// A company with collective orders to correct: a client, the company
// itself as a carrier (IDWłaściciela), two outside carriers and a client
// that never carries, three VAT rates, two drivers and two vehicles, the
// first taking 33 pallets and driven by default by the first driver.
class CollectiveFixture : public SessionFixture
{
protected:
    void SetUp() override;

    // A collective order numbered 7 of 2026-05-04 carried by carrier A in
    // vehicle 1 with driver 1; returns its key.
    int addCollective(const std::function<void(TZlecenia_zbiorObj &)> &change = {});
    TZlecenia_zbiorObj collective(int key);
    // An order of the client loaded today, 10 pallets planned; its key.
    int addOrder(const std::function<void(TZlecenia_przychObj &)> &change = {});
    TZlecenia_przychObj order(int key);

    int client = 0;
    int ownCompany = 0;
    int carrierA = 0;
    int carrierB = 0;
    int clientOnly = 0;
    int vat23 = 0;
    int vat8 = 0;
    int vat0 = 0;
    int driver1 = 0;
    int driver2 = 0;
    int vehicle1 = 0;
    int vehicle2 = 0;
};
