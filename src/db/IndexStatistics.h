#pragma once

class Connection;

// The engine chooses how to read a table by the selectivity it keeps for
// each index, and it keeps the figure from when the index was last
// measured: an index built on an empty table counts as unique for ever, and
// a month's invoices are then found by reading every order the company
// has. The figures are measured again after data is loaded, and should be
// from time to time as a company's tables grow (haulix-admin statistics).
namespace IndexStatistics {

// Measures every index of the database's own tables; returns how many.
// Throws DbError.
int refresh(Connection &connection);

} // namespace IndexStatistics
