#pragma once

#include <QString>

#include <array>

// The register's columns, in list order.
namespace OrderListColumns {

enum Column {
    Numer,
    Zleceniodawca,
    Przewoznik,
    Kierowca,
    ZlecObce,
    DataZaladunku,
    Trasa,
    Faktura,
    NrKarty,
    NrListu,
    NrRej,
    FaktPrzewoznika,
    Koszt,
    Przychod,
    Roznica,
    KwotaFaktPrzewoznika,
    Operator,
    Filtr,
    IdKontrahenta,
    IdPrzewoznika,
    IdZlecenia,
    Count
};

struct Description
{
    const char *caption;   // UTF-8
    int width;             // 0: the list's default width
    bool rightAligned;
};

const std::array<Description, Count> &all();
QString caption(int column);

// The columns the list frame sorts as numbers and as dates.
QStringList numericCaptions();
QStringList dateCaptions();

} // namespace OrderListColumns
