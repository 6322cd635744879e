#include "InvoiceLine.h"

#include "CentRounding.h"
#include "Format.h"
#include "TFaktury_pozycjeObj.h"
#include "TStawki_vatObj.h"

InvoiceLine InvoiceLine::of(const TFaktury_pozycjeObj &position, const TStawki_vatObj &rate)
{
    InvoiceLine line;
    line.name = position.TRESC;
    if (position.ILOSC == 0.0) {
        line.textOnly = true;
        return line;
    }
    line.rateKey = position.ID_VAT;
    line.unit = position.JM;
    line.quantity = Format::number(position.ILOSC, u"#,##0.0");
    line.unitPrice = Format::number(position.CENA_NETTO, u"#,##0.00");
    const VatAmounts values = amounts(position.ILOSC, position.CENA_NETTO, rate.PROCENT);
    line.netValue = values.net;
    line.rate = rate.OPIS;
    line.vatValue = values.vat;
    line.grossValue = values.gross;
    line.net = Format::number(line.netValue, u"#,##0.00");
    line.vat = Format::number(line.vatValue, u"#,##0.00");
    line.gross = Format::number(line.grossValue, u"#,##0.00");
    return line;
}

VatAmounts InvoiceLine::amounts(double quantity, double netPrice, double rate)
{
    VatAmounts values;
    values.net = CentRounding::halfUp(quantity * netPrice);
    values.vat = CentRounding::halfUp(values.net * rate);
    values.gross = values.net + values.vat;
    return values;
}
