#include "PrintJobs.h"

#include "CarrierPrintJobs.h"
#include "JobArguments.h"
#include "PdfBook.h"
#include "StatementPrintJobs.h"
#include "TfrmPrintReport.h"
#include "TfrmRachunekPL.h"
#include "TfrmZalacznik.h"

#include <stdexcept>

namespace {

void invoice(PdfBook &book, Connection &connection, const QStringList &arguments)
{
    TfrmRachunekPL printout(connection, JobArguments::keyOf(arguments.at(0)));
    book.add(printout.qrRachunekPL());
}

void attachment(PdfBook &book, Connection &connection, const QStringList &arguments)
{
    TfrmZalacznik printout(connection, JobArguments::keyOf(arguments.at(0)));
    book.add(printout.qrZalacznik());
}

} // namespace

const std::vector<PrintJobs::Job> &PrintJobs::all()
{
    static const std::vector<Job> jobs{
        {QStringLiteral("invoice"), QStringLiteral("ID"),
         QStringLiteral("faktura o identyfikatorze ID"), 1, invoice},
        {QStringLiteral("attachment"), QStringLiteral("ID"),
         QStringLiteral("załącznik do faktury o identyfikatorze ID"), 1, attachment},
        {QStringLiteral("invoice-with-attachment"), QStringLiteral("ID"),
         QStringLiteral("faktura i jej załącznik w jednym pliku"), 1,
         [](PdfBook &book, Connection &connection, const QStringList &arguments) {
             invoice(book, connection, arguments);
             attachment(book, connection, arguments);
         }},
        {QStringLiteral("order"), QStringLiteral("ID"),
         QStringLiteral("zlecenie transportowe dla przewoźnika, zlecenie o identyfikatorze ID"),
         1,
         [](PdfBook &book, Connection &connection, const QStringList &arguments) {
             TfrmPrintReport printout(connection, JobArguments::keyOf(arguments.at(0)));
             book.add(printout.qrZlecenie());
         }},
        {QStringLiteral("carriers-unpaid"), QStringLiteral("[--carrier ID]"),
         QStringLiteral("faktury przewoźników niezapłacone"), 0, CarrierPrintJobs::unpaid,
         {QStringLiteral("--carrier")}},
        {QStringLiteral("carriers-paid"), QStringLiteral("OD DO [--carrier ID]"),
         QStringLiteral("faktury przewoźników zapłacone od OD do DO (rrrr-mm-dd)"), 2,
         CarrierPrintJobs::paid, {QStringLiteral("--carrier")}},
        {QStringLiteral("carriers-issued"), QStringLiteral("OD DO [--carrier ID]"),
         QStringLiteral("faktury przewoźników wystawione od OD do DO (rrrr-mm-dd)"), 2,
         CarrierPrintJobs::issued, {QStringLiteral("--carrier")}},
        {QStringLiteral("carriers-payment"), QString(),
         QStringLiteral("płatność - przewoźnicy: niezapłacone według daty zapłaty"), 0,
         CarrierPrintJobs::payments},
        {QStringLiteral("invoices-statement"), QStringLiteral("OD DO [--own]"),
         QStringLiteral("faktury krajowe wystawione od OD do DO (--own: wykonawca własny)"),
         2, StatementPrintJobs::issuedInvoices, {}, {QStringLiteral("--own")}},
        {QStringLiteral("partners"),
         QStringLiteral("OD DO [--partner ID] [--domestic|--foreign] [--own|--others]"),
         QStringLiteral("zlecenia w podziale na kontrahenta (raport wspólników)"), 2,
         StatementPrintJobs::partners, {QStringLiteral("--partner")},
         {QStringLiteral("--domestic"), QStringLiteral("--foreign"), QStringLiteral("--own"),
          QStringLiteral("--others")}},
        {QStringLiteral("statement-clients"), QStringLiteral("OD DO [--client ID]"),
         QStringLiteral("kwoty dla kontrahenta - przychód, zysk od OD do DO"), 2,
         StatementPrintJobs::clients, {QStringLiteral("--client")}},
        {QStringLiteral("statement-carriers"), QStringLiteral("OD DO [--carrier ID]"),
         QStringLiteral("kwota stawki na przewoźnika - koszt od OD do DO"), 2,
         StatementPrintJobs::carriers, {QStringLiteral("--carrier")}},
        {QStringLiteral("statement-rate-differences"), QStringLiteral("OD DO"),
         QStringLiteral("faktury przewoźnika i własne: faktury wystawione od OD do DO"), 2,
         StatementPrintJobs::rateDifferences},
        {QStringLiteral("statement-user-rates"), QStringLiteral("OD DO [--user ID]"),
         QStringLiteral("zestawienie stawek na spedytora\\dysponenta od OD do DO"), 2,
         StatementPrintJobs::userRates, {QStringLiteral("--user")}},
        {QStringLiteral("statement-user-invoices"), QStringLiteral("OD DO [--user ID]"),
         QStringLiteral("zestawienie faktur na spedytora\\dysponenta od OD do DO"), 2,
         StatementPrintJobs::userInvoices, {QStringLiteral("--user")}},
        {QStringLiteral("statement-user-carrier-invoices"), QStringLiteral("OD DO [--user ID]"),
         QStringLiteral("zestawienie faktur obcych na spedytora\\dysponenta od OD do DO"), 2,
         StatementPrintJobs::userCarrierInvoices, {QStringLiteral("--user")}},
    };
    return jobs;
}

const PrintJobs::Job *PrintJobs::find(const QString &name)
{
    for (const Job &job : all()) {
        if (job.name == name)
            return &job;
    }
    return nullptr;
}
