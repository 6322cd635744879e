#pragma once

class BenchTimer;

// The order editor on a demo company with many orders: opening it to add
// and to correct an order, saving a correction, and the goods of an order.
void benchOrderEditor(BenchTimer &timer, int orders);
