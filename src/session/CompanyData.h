#pragma once

#include <QString>

class Connection;

// The company's own header data from DANE_FIRMY (one row), as printouts
// show it. Fields are named after the columns.
struct CompanyData
{
    QString NAZWA;
    QString KOD;
    QString MIEJSCOWOSC;
    QString ADRES;
    QString POBOX;
    QString NIP;
    QString REGON;
    QString KONTAKT1;
    QString KONTAKT2;
    QString KONTAKT3;
    QString KONTAKT4;
    QString KONTAKT5;
    QString KONTAKT6;
    QString MIEJSCE_WYSTAWIANIA;   // the place of issue printed on invoices
    QString WOJEWODZTWO;
    QString EURONIP_1;
    QString EURONIP_2;
    QString EURONIP_3;

    // The first row of DANE_FIRMY; empty texts when the table is empty.
    // A database failure throws DbError.
    static CompanyData load(Connection &connection);
};
