#include "Shots.h"

#include "ShotBook.h"

void registerShots(ShotBook &book)
{
    addFrameworkShots(book);
    addOrdersShots(book);
}
