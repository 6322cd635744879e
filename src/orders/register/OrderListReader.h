#pragma once

#include "OrderRevenueColumns.h"

class EngineRows;
class RowTexts;

// What the register keeps of an order besides its column texts.
struct OrderListRow
{
    int key = 0;         // ID_ZLECENIA_PRZYCH
    bool closed = false;
    double revenue = 0.0;
};

// Turns the rows of the register's statement (the view VZLECENIA_PRZYCH)
// into list rows. The columns are looked up once, when the reader is made
// on the executed statement's rows; read() then takes the current row.
class OrderListReader
{
public:
    explicit OrderListReader(const EngineRows &rows);

    // Writes the current row's column texts, the caption ("Numer") first,
    // into texts (emptied first) and returns the rest.
    OrderListRow read(RowTexts &texts) const;

private:
    int column(const char *name) const;

    const EngineRows &m_rows;
    int m_key, m_numer, m_kontrahent, m_przewoznik, m_kierowca, m_numerObcy, m_data;
    int m_miastoOd, m_miastoVia, m_miastoDo, m_nrFaktury, m_nrKarty, m_nrListu, m_pojazd;
    int m_numerObcaFak, m_kosztRazem;
    OrderRevenueColumns m_revenue;
    int m_kwotaObcaFakt, m_operator, m_filtr1, m_idKontrahent, m_idPrzewoznik, m_zamkniete;
};
