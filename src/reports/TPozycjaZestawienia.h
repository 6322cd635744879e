#pragma once

#include "DateTime.h"

#include <QString>

// One line of the statement of issued invoices: an invoice with its client,
// a vehicle that carried one of its orders and the sums of its lines.
struct TPozycjaZestawienia
{
    int IdFaktury = 0;
    int NrKolejny = 0;
    QString NumerPelny;        // at most 40 characters
    DateTime DataSprzedazy;
    int IdKontrahenta = 0;
    QString Kontrahent;        // the client's full name
    double Netto = 0.0;
    double Brutto = 0.0;
    double Vat = 0.0;
    double OplataSkarbowa = 0.0;   // the net of the stamp-fee lines
    QString Pojazd;
    DateTime DataWystawienia;
    DateTime DataPlatnosci;    // issue date plus the days to pay
};
