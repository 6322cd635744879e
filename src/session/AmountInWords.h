#pragma once

#include <QString>

// The amount written out in Polish words as invoices print it after
// "Słownie złotych:": the whole złoty in words, then the grosze as a
// fraction ("dwanaście 50/100"). The currency name is not written.
//
// The text is built by plain concatenation of words that each carry a
// leading blank, so parts are separated by doubled blanks in places
// ("jeden tysiąc  pięćset 00/100"); printed invoices look like that and the
// text is kept exactly so. Only the first digit of the millions is worded:
// amounts of ten million or more come out wrong, which the business
// accepted. A negative amount is worded by its magnitude.
namespace AmountInWords {

// At most 255 characters.
QString words(double amount);

} // namespace AmountInWords
