#pragma once

class ShotBook;

// Every group of shots adds itself to the book here; one line per group.
void registerShots(ShotBook &book);

// The framework's own forms.
void addFrameworkShots(ShotBook &book);

// The incoming orders register.
void addRegisterShots(ShotBook &book);

// A sample page of the report engine.
void addReportShots(ShotBook &book);

// Price lists, tariffs, cities and distances.
void addPricingShots(ShotBook &book);

// The order editor, goods, places and the template date.
void addOrdersShots(ShotBook &book);

// The invoice, its attachment and the transport order, first pages.
void addPrintoutShots(ShotBook &book);
// The registers and editors of the suite's sibling modules.
void addSiblingShots(ShotBook &book);
