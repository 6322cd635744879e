#pragma once

class BenchTimer;

// The list frame with a register-sized list: 100,000 rows of 21 columns.
void benchListView(BenchTimer &timer, int rows);
