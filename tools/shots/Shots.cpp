#include "Shots.h"

#include "ShotBook.h"

void registerShots(ShotBook &book)
{
    addFrameworkShots(book);
    addRegisterShots(book);
    addReportShots(book);
    addPricingShots(book);
    addOrdersShots(book);
    addPrintoutShots(book);
    addSiblingShots(book);
    addCarrierShots(book);
    addStatementShots(book);
    addInvoicingShots(book);
    addCollectiveShots(book);
}
