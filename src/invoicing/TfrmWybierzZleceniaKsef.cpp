// The last invoice of the invoicing form as an e-invoice file.
#include "TfrmWybierzZlecenia.h"

#include "FilePrompts.h"
#include "KsefError.h"
#include "KsefExport.h"
#include "MessageService.h"
#include "ReportFailures.h"
#include "SessionContext.h"

#include <QDir>
#include <QLabel>

void TfrmWybierzZlecenia::btnEksportKsefClick()
{
    const int key = lastInvoice();
    Connection *database = session().Database;
    if (key < 1 || !database)
        return;
    const QString caption = QStringLiteral("Eksport KSeF");
    // The document is built and checked before a file is asked for: what
    // is missing is said first, and nothing is written.
    reportFailures(QStringLiteral("Nie można wyeksportować faktury"), [&] {
        try {
            const QByteArray document
                = KsefExport(*database).document(key, QDateTime::currentDateTimeUtc());
            const FilePrompt prompt{caption, KsefExport::fileName(Label6->text(), key),
                                    QStringLiteral("Pliki XML|*.xml|Wszystkie pliki|*.*"),
                                    QStringLiteral("xml")};
            const QString path = FilePromptService::instance().saveFileName(this, prompt);
            if (path.isEmpty())
                return;
            KsefExport::write(path, document);
            Messages::inform(caption, QStringLiteral("Zapisano fakturę %1 w pliku %2.")
                                          .arg(Label6->text(), QDir::toNativeSeparators(path)));
        } catch (const KsefError &error) {
            Messages::inform(caption, error.message(), MessageService::Icon::Warning);
        }
    });
}
