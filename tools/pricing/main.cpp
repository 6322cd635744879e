// haulix-pricing: opens one of the pricing registers on its own, on the
// demo database (or --db PATH), for trying them without the order register.
//
//   haulix-pricing [--db PATH] [--user ID] cennik|przedzialy|kontrahenci|taryfy|miasta

#include "Connection.h"
#include "DbError.h"
#include "DemoDatabase.h"
#include "PolishLanguage.h"
#include "QtMessageService.h"
#include "SessionContext.h"
#include "TfrmCennikMenu.h"
#include "TfrmCennikWierszeKolumny.h"
#include "TfrmCennikiKontrahenci.h"
#include "TfrmMiasta.h"
#include "TfrmStawkiTaryfowe.h"
#include "Transaction.h"

#include <QApplication>
#include <QTextStream>

#include <functional>
#include <map>

namespace {

using Opener = std::function<int()>;

const std::map<QString, Opener> &registers()
{
    static const std::map<QString, Opener> openers{
        {QStringLiteral("cennik"),
         [] { return TfrmRODefault::create<TfrmCennikMenu>(nullptr)->showModal(); }},
        {QStringLiteral("przedzialy"),
         [] { return TfrmRODefault::create<TfrmCennikWierszeKolumny>(nullptr)->showModal(); }},
        {QStringLiteral("kontrahenci"),
         [] { return TfrmRODefault::create<TfrmCennikiKontrahenci>(nullptr)->showModal(); }},
        {QStringLiteral("taryfy"),
         [] { return TfrmRODefault::create<TfrmStawkiTaryfowe>(nullptr, 0, 0)->showModal(); }},
        {QStringLiteral("miasta"),
         [] { return TfrmRODefault::create<TfrmMiasta>(nullptr)->showModal(); }},
    };
    return openers;
}

int usage()
{
    QTextStream(stderr) << "Użycie: haulix-pricing [--db ŚCIEŻKA] [--user ID] "
                           "cennik|przedzialy|kontrahenci|taryfy|miasta\n";
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    QApplication::setOrganizationName(QStringLiteral("Kelvaro"));
    QApplication::setApplicationName(QStringLiteral("Haulix"));
    usePolishLanguage();

    QString database;
    int userId = 1;
    QString name;
    const QStringList arguments = QApplication::arguments().mid(1);
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        if (arguments[i] == QLatin1String("--db") && i + 1 < arguments.size())
            database = arguments[++i];
        else if (arguments[i] == QLatin1String("--user") && i + 1 < arguments.size())
            userId = arguments[++i].toInt();
        else
            name = arguments[i];
    }
    const auto opener = registers().find(name);
    if (opener == registers().end())
        return usage();

    Connection connection;
    try {
        if (database.isEmpty()) {
            database = DemoDatabase::ensure(
                [](const QString &message) { QTextStream(stdout) << message << '\n'; });
        }
        connection.open(database);
    } catch (const DbError &error) {
        QTextStream(stderr) << error.message() << '\n';
        return 1;
    }
    MessageServices::setProgramService(std::make_unique<QtMessageService>());
    Transaction transaction(connection);
    setSession(userId, &connection, &transaction);
    const int result = opener->second();
    setSession(0, nullptr, nullptr);
    connection.close();
    return result == TfrmRODefault::mrOk || result == TfrmRODefault::mrCancel ? 0 : 1;
}
