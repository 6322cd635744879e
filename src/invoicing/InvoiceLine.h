#pragma once

#include "InvoiceTotals.h"

#include <QString>

class TFaktury_pozycjeObj;
class TStawki_vatObj;

// One position of an invoice as its detail line prints it. A position with
// quantity 0 is a line of text only: every other cell stays empty and it
// adds nothing to any total.
struct InvoiceLine
{
    QString name;        // "Nazwa towaru lub usługi"
    QString unit;        // "Jm"
    QString quantity;    // "Ilość", "#,##0.0"
    QString unitPrice;   // "wart.jedn.", "#,##0.00"
    QString net;         // "wartość netto"
    QString rate;        // "Vat%": the rate's own label
    QString vat;         // "wart.VAT"
    QString gross;       // "Wartość Brutto"

    bool textOnly = false;
    int rateKey = 0;
    double netValue = 0.0;
    double vatValue = 0.0;
    double grossValue = 0.0;

    // The rate is the position's STAWKI_VAT record; a key of 0 (rate not
    // found) prints no label and no VAT.
    static InvoiceLine of(const TFaktury_pozycjeObj &position, const TStawki_vatObj &rate);
    // What a position of that quantity, net unit price and VAT rate (a
    // fraction: 0.23) amounts to: its net rounded to the grosz, the VAT of
    // that net rounded again, and their sum.
    static VatAmounts amounts(double quantity, double netPrice, double rate);
};
