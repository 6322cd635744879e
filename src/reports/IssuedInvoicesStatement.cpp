#include "IssuedInvoicesStatement.h"

#include "IssuedInvoices.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TfrmWaitPlease.h"
#include "TfrmWybierzDatyAndKontrahenta.h"
#include "TfrmZestawienieRachunkow.h"

#include <QLabel>

#include <optional>

void IssuedInvoicesStatement::run(QWidget *owner)
{
    Connection *database = session().Database;
    if (!database)
        return;
    const auto dialog = TfrmRODefault::create<TfrmWybierzDatyAndKontrahenta>(owner);
    if (dialog->showModal() != TfrmRODefault::mrOk)
        return;
    IssuedInvoices invoices(*database, dialog->from(), dialog->to(), dialog->ownExecutor());
    std::vector<TPozycjaZestawienia> records;
    std::optional<TfrmZestawienieRachunkow> report;
    const bool built = reportFailures(QStringLiteral("Nie można zestawić wystawionych faktur"), [&] {
        const int count = invoices.read();
        {
            WaitPleaseScope wait(count, owner);
            records = invoices.build([&wait](const QString &label) {
                wait.window().advance();
                wait.window().lblRachunek->setText(label);
                wait.window().lblRachunek->repaint();
            });
        }
        report.emplace(*database);
    });
    if (!built)
        return;
    report->setTitle(invoices.title());
    report->setRecords(records);
    if (dialog->previewFirst())
        report->Preview();
    else
        report->Print();
}
