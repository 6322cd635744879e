#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

struct InvoiceData;

// One issued invoice as a structured e-invoice FA(3): the document the
// national e-invoice system takes, written with QXmlStreamWriter in UTF-8.
// Its amounts are the printout's own lines, group totals and amount due,
// so the two cannot differ by a grosz. Not validated here: KsefSchema does.
class KsefInvoice
{
public:
    // buyerCountry is the client's country symbol (KRAJE.SYMBOL), empty
    // when the client has no country.
    KsefInvoice(const InvoiceData &data, const QString &buyerCountry);

    // Throws KsefError naming the record to complete when the company has
    // no NIP, a Polish client has none, the invoice has no bank account
    // with a number, or a position has a rate the structure has no field
    // for; also for a correction, which this structure cannot describe here.
    void checkComplete() const;

    // The document, created at that moment (written in UTC). Checks first.
    QByteArray xml(const QDateTime &created) const;

    // The schema's namespace.
    static QString ns();

private:
    const InvoiceData &m_data;
    QString m_country;
};
