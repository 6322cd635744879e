#pragma once

#include "KsefSchema.h"

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>

#include <vector>

class Connection;

// Issued invoices as e-invoice files: each invoice read as its printout
// reads it, built, checked against the schema and only then written.
class KsefExport
{
public:
    struct Issued
    {
        int key = 0;
        QString fullNumber;
    };

    // Throws KsefError when the built-in schema cannot be read.
    explicit KsefExport(Connection &connection);

    // The checked document. Throws KsefError (data to complete, a document
    // the schema refuses), PrintoutError (no such invoice), DbError.
    QByteArray document(int invoiceKey, const QDateTime &created) const;

    // Writes the checked document to the file; a refused document leaves
    // no file and an earlier file as it was. Throws as document() and write().
    void save(int invoiceKey, const QString &path, const QDateTime &created) const;
    // The whole document or nothing: a file there is replaced only once the
    // new one is complete. Throws KsefError when the file cannot be written.
    static void write(const QString &path, const QByteArray &document);

    // The invoices issued on those days, by issue date and key.
    std::vector<Issued> issuedBetween(QDate from, QDate to) const;

    // "001_07_2026.xml" for "001/07/2026": the full number with every
    // character a file name cannot safely hold replaced; "faktura-KEY.xml"
    // without a number.
    static QString fileName(const QString &fullNumber, int invoiceKey);

private:
    Connection &m_connection;
    KsefSchema m_schema;
};
