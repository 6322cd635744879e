#include "Gbak.h"

#include "DbError.h"
#include "FirebirdEnvironment.h"

#include <QProcess>
#include <QProcessEnvironment>
#include <QStandardPaths>

void Gbak::run(const QStringList &arguments, const FirebirdFailure &failure) const
{
    const QString program = QStandardPaths::findExecutable(QStringLiteral("gbak"));
    if (program.isEmpty())
        throw DbError(QStringLiteral("Brak programu gbak: zainstaluj pakiet firebird3.0-utils."));
    FirebirdEnvironment::prepare();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("ISC_PASSWORD"));
    if (m_login) {
        environment.insert(QStringLiteral("ISC_USER"), m_login->user);
        environment.insert(QStringLiteral("ISC_PASSWORD"), m_login->password);
    } else {
        // The embedded engine asks for no password; the name becomes the
        // owner of a restored database, as for a database we create.
        environment.insert(QStringLiteral("ISC_USER"), QStringLiteral("SYSDBA"));
    }
    QProcess gbak;
    gbak.setProcessEnvironment(environment);
    gbak.setProcessChannelMode(QProcess::MergedChannels);
    gbak.start(program, arguments);
    if (!gbak.waitForStarted())
        throw DbError(QStringLiteral("Nie można uruchomić programu %1.").arg(program));
    // A backup that ends too early makes gbak ask for the next volume.
    gbak.closeWriteChannel();
    gbak.waitForFinished(-1);
    const QString said = QString::fromLocal8Bit(gbak.readAll());
    if (gbak.exitStatus() != QProcess::NormalExit || gbak.exitCode() != 0)
        throw DbError(failure.explain(said.isEmpty() ? gbak.errorString() : said));
}
