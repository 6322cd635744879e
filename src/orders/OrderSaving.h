#pragma once

class Transaction;
class TZlecenia_przychObj;

// What the order editor does with an order on OK, without the form.
namespace OrderSaving {

// Writes the order with the editor's statements (a new one when adding,
// with the key its insert got; else the one with the record's key) and
// remembers its route's distance, in one transaction scope. A number of 0
// or less is proposed first (OrderNumbering::propose), under the loading
// year's numbering lock, so that two workstations never give one number
// twice; a conflict with another workstation's numbering starts the scope
// over when it is the whole transaction. On success the record holds the
// key and number saved; on a DbError it is as it was and nothing is
// written.
void save(Transaction &transaction, TZlecenia_przychObj &order, bool adding);

} // namespace OrderSaving
