#pragma once

#include "DbError.h"
#include "OrderRevenue.h"

#include <QString>

// The columns of an executed statement that an order's revenue is made of,
// under the names the order table and its view give them (KWOTA,
// KM_LADOWNE, STAWKA_KMLAD, ...). They are looked up once; read() then
// takes the figures of the current row, whole-number readings included.
// Rows is what the rows are read through: a Statement, or EngineRows for
// long lists.
class OrderRevenueColumns
{
public:
    // Throws DbError when the statement lacks one of them.
    template <class Rows>
    explicit OrderRevenueColumns(const Rows &rows)
        : m_kwota(required(rows, "KWOTA")), m_kmLadowne(required(rows, "KM_LADOWNE")),
          m_stawkaKmLad(required(rows, "STAWKA_KMLAD")), m_kmPuste(required(rows, "KM_PUSTE")),
          m_stawkaKmPusty(required(rows, "STAWKA_KMPUSTY")),
          m_iloscGodzin(required(rows, "ILOSC_GODZIN")),
          m_stawkaGodziny(required(rows, "STAWKA_GODZINY")),
          m_paletyIlosc(required(rows, "PALETYILOSC")),
          m_stawkaPalety(required(rows, "STAWKA_PALETY"))
    {
    }

    template <class Rows> OrderRevenueFigures read(const Rows &rows) const
    {
        OrderRevenueFigures figures;
        figures.wholeAmount = rows.integer(m_kwota);
        figures.loadedKm = rows.integer(m_kmLadowne);
        figures.loadedKmRate = rows.number(m_stawkaKmLad);
        figures.emptyKm = rows.number(m_kmPuste);
        figures.emptyKmRate = rows.number(m_stawkaKmPusty);
        figures.hours = rows.number(m_iloscGodzin);
        figures.hourRate = rows.number(m_stawkaGodziny);
        figures.pallets = rows.integer(m_paletyIlosc);
        figures.palletRate = rows.number(m_stawkaPalety);
        return figures;
    }
    template <class Rows> double revenue(const Rows &rows) const
    {
        return orderRevenue(read(rows));
    }

    // The column's index; throws DbError when the rows lack it.
    template <class Rows> static int required(const Rows &rows, const char *name)
    {
        const int index = rows.columnIndex(QString::fromLatin1(name));
        if (index < 0)
            throw DbError(
                QStringLiteral("Brak kolumny %1 w liście zleceń.").arg(QLatin1String(name)));
        return index;
    }

private:
    int m_kwota, m_kmLadowne, m_stawkaKmLad, m_kmPuste, m_stawkaKmPusty;
    int m_iloscGodzin, m_stawkaGodziny, m_paletyIlosc, m_stawkaPalety;
};
