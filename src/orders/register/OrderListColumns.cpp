#include "OrderListColumns.h"

#include <QStringList>

namespace OrderListColumns {

const std::array<Description, Count> &all()
{
    static const std::array<Description, Count> columns{{
        {"Numer", 60, false},
        {"Zleceniodawca", 100, false},
        {"Przewoźnik", 160, false},
        {"Kierowca", 0, false},
        {"ZlecObce", 0, false},
        {"Data załad", 70, false},
        {"Trasa", 120, false},
        {"Faktura", 80, false},
        {"Nr.karty", 60, false},
        {"Nr.listu", 60, true},
        {"Nr.rej", 0, false},
        {"Fakt.Przew", 0, false},
        {"Koszt", 0, true},
        {"Przychod", 0, true},
        {"Różnica", 0, true},
        {"FaktPrzew", 0, true},
        {"Operator", 80, false},
        {"Filtr", 0, false},
        {"IdKontrahenta", 0, false},
        {"IdPrzewoźnika", 0, false},
        {"IDZlecenia", 0, false},
    }};
    return columns;
}

QString caption(int column)
{
    return QString::fromUtf8(all().at(column).caption);
}

QStringList numericCaptions()
{
    QStringList captions;
    for (const int column : {Numer, NrKarty, NrListu, Koszt, Przychod, Roznica,
                             KwotaFaktPrzewoznika, IdKontrahenta, IdPrzewoznika, IdZlecenia})
        captions << caption(column);
    return captions;
}

QStringList dateCaptions()
{
    return {caption(DataZaladunku)};
}

} // namespace OrderListColumns
