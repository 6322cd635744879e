#pragma once

class TestDatabase;

// Runs the demo seed into the test's empty database and stops it half-way,
// as a failure between its steps does: the privileges refuse every row,
// after the dictionaries, cities and contractors took their keys. True
// when the seed stopped with a DbError, as it must.
bool stopSeedHalfWay(TestDatabase &db);
