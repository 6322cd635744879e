#pragma once

#include "OrderRevenue.h"

class Statement;

// The columns of an executed statement that an order's revenue is made of,
// under the names the order table and its view give them (KWOTA,
// KM_LADOWNE, STAWKA_KMLAD, ...). They are looked up once; read() then
// takes the figures of the current row, whole-number readings included.
class OrderRevenueColumns
{
public:
    // Throws DbError when the statement lacks one of them.
    explicit OrderRevenueColumns(const Statement &statement);

    OrderRevenueFigures read(const Statement &statement) const;
    double revenue(const Statement &statement) const { return orderRevenue(read(statement)); }

private:
    int m_kwota, m_kmLadowne, m_stawkaKmLad, m_kmPuste, m_stawkaKmPusty;
    int m_iloscGodzin, m_stawkaGodziny, m_paletyIlosc, m_stawkaPalety;
};
