#pragma once

#include "TKontrahenciObj.h"
#include "TableRecordEditing.h"
#include "TableRegister.h"

// The contractors' register and editor: clients and carriers with their
// names, NIP, address, payment terms, bank account, contact data, role and
// active flag. The contractor's own bank account number is kept in the
// first free field (POLE1): KONTRAHENCI has no column of its own for it, and
// IDKONTA names one of the company's accounts in KONTA_BANKOWE.
namespace Contractors {

TableRegister<TKontrahenciObj>::Definition listing();
TableRecordEditing<TKontrahenciObj>::Definition editing();

// Short name taken, a Polish NIP or a postal code that fail their checks,
// a bank account number with wrong check digits. A database failure
// throws DbError.
Problem check(const TKontrahenciObj &contractor, Connection &connection);

// Why a contractor may not be deleted besides the records that use it:
// it is the company itself (IDWłaściciela). Empty otherwise.
QString ownCompanyRefusal(Connection &connection, int key);

} // namespace Contractors
