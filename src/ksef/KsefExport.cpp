#include "KsefExport.h"

#include "InvoiceData.h"
#include "KsefError.h"
#include "KsefInvoice.h"
#include "Statement.h"
#include "TKrajeObj.h"

#include <QRegularExpression>
#include <QSaveFile>

namespace {

QString countryOf(Connection &connection, int countryKey)
{
    if (countryKey == 0)
        return QString();
    const std::vector<TKrajeObj> countries
        = TKrajeObj(connection).SelectWhere(QStringLiteral("ID_KRAJU"), opEqual, countryKey);
    return countries.empty() ? QString() : countries.front().SYMBOL;
}

} // namespace

KsefExport::KsefExport(Connection &connection) : m_connection(connection) {}

QByteArray KsefExport::document(int invoiceKey, const QDateTime &created) const
{
    const InvoiceData data = InvoiceData::load(m_connection, invoiceKey);
    const KsefInvoice invoice(data, countryOf(m_connection, data.client.ID_KRAJU));
    const QByteArray xml = invoice.xml(created);
    m_schema.check(xml, QStringLiteral("Faktura %1").arg(data.invoice.NUMER_PELNY.trimmed()));
    return xml;
}

void KsefExport::save(int invoiceKey, const QString &path, const QDateTime &created) const
{
    write(path, document(invoiceKey, created));
}

void KsefExport::write(const QString &path, const QByteArray &document)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(document) != document.size()
        || !file.commit()) {
        throw KsefError(QStringLiteral("Nie można zapisać pliku %1: %2")
                            .arg(path, file.errorString()));
    }
}

std::vector<KsefExport::Issued> KsefExport::issuedBetween(QDate from, QDate to) const
{
    Statement st(m_connection);
    st.add(QStringLiteral("select ID_FAKTURY, NUMER_PELNY from FAKTURY"));
    st.add(QStringLiteral("where DATA_WYSTAWIENIA >= :aOd and DATA_WYSTAWIENIA < :aDo"));
    st.add(QStringLiteral("order by DATA_WYSTAWIENIA, ID_FAKTURY"));
    st.bind(QStringLiteral("aOd"), DateTime::fromDate(from));
    st.bind(QStringLiteral("aDo"), DateTime::fromDate(to.addDays(1)));
    st.exec();
    std::vector<Issued> issued;
    for (; !st.atEnd(); st.next())
        issued.push_back({st.integer(0), st.string(1)});
    return issued;
}

QString KsefExport::fileName(const QString &fullNumber, int invoiceKey)
{
    static const QRegularExpression unsafe(QStringLiteral("[^\\w.\\-]+"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString name = fullNumber.trimmed().replace(unsafe, QStringLiteral("_"));
    // A leading dot would hide the file.
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    if (name.isEmpty())
        name = QStringLiteral("faktura-%1").arg(invoiceKey);
    return name + QStringLiteral(".xml");
}
