#pragma once

#include <memory>

class Connection;
class QString;
class QWidget;
class Report;
class ShotBook;

// A demo company of 120 orders, seeded on first use, for the printouts.
Connection &demoCompany();
// The first column of the first row a query gives on the demo company;
// throws std::runtime_error when there is no row.
int demoKey(const QString &sql);
// The report's first page as the preview paints it.
std::unique_ptr<QWidget> firstPage(Report &report);
std::unique_ptr<QWidget> lastPage(Report &report);
std::unique_ptr<QWidget> pageOf(Report &report, bool last);

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

// Road cards, the carrier's invoice and the carriers' invoice lists.
void addCarrierShots(ShotBook &book);

// The statements of the register's statements menu, the statement of issued
// invoices and the partners report, with their dialogs.
void addStatementShots(ShotBook &book);
// Invoicing of orders: the client choice, the orders and the invoice header.
void addInvoicingShots(ShotBook &book);
// Collective orders: the editor, the consignments on a vehicle and their choice.
void addCollectiveShots(ShotBook &book);
