#pragma once

// The money of one order of the partners report. The margin is taken on
// the cost, not on the rate, and is already a percentage; with no cost
// there is no margin. The profit is split in two halves, one per partner.
struct PartnersLine
{
    double rate = 0.0;   // STAWKA_RAZEM
    double cost = 0.0;   // KOSZTRAZEM

    double profit() const { return rate - cost; }
    double margin() const { return cost != 0.0 ? (rate - cost) * 100.0 / cost : 0.0; }
    double halfMargin() const { return margin() / 2.0; }
    double half() const { return (rate - cost) / 2.0; }
};
