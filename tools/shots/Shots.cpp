#include "Shots.h"

#include "ShotBook.h"

void registerShots(ShotBook &book)
{
    addFrameworkShots(book);
    addReportShots(book);
    addPricingShots(book);
    addOrdersShots(book);
}
