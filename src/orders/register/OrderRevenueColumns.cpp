#include "OrderRevenueColumns.h"

#include "DbError.h"
#include "Statement.h"

namespace {

int required(const Statement &statement, const char *name)
{
    const int index = statement.columnIndex(QString::fromLatin1(name));
    if (index < 0)
        throw DbError(
            QStringLiteral("Brak kolumny %1 w liście zleceń.").arg(QLatin1String(name)));
    return index;
}

} // namespace

OrderRevenueColumns::OrderRevenueColumns(const Statement &st)
    : m_kwota(required(st, "KWOTA")), m_kmLadowne(required(st, "KM_LADOWNE")),
      m_stawkaKmLad(required(st, "STAWKA_KMLAD")), m_kmPuste(required(st, "KM_PUSTE")),
      m_stawkaKmPusty(required(st, "STAWKA_KMPUSTY")),
      m_iloscGodzin(required(st, "ILOSC_GODZIN")),
      m_stawkaGodziny(required(st, "STAWKA_GODZINY")),
      m_paletyIlosc(required(st, "PALETYILOSC")), m_stawkaPalety(required(st, "STAWKA_PALETY"))
{
}

OrderRevenueFigures OrderRevenueColumns::read(const Statement &st) const
{
    OrderRevenueFigures figures;
    figures.wholeAmount = st.integer(m_kwota);
    figures.loadedKm = st.integer(m_kmLadowne);
    figures.loadedKmRate = st.number(m_stawkaKmLad);
    figures.emptyKm = st.number(m_kmPuste);
    figures.emptyKmRate = st.number(m_stawkaKmPusty);
    figures.hours = st.number(m_iloscGodzin);
    figures.hourRate = st.number(m_stawkaGodziny);
    figures.pallets = st.integer(m_paletyIlosc);
    figures.palletRate = st.number(m_stawkaPalety);
    return figures;
}
