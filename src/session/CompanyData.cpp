#include "CompanyData.h"

#include "Statement.h"

#include <utility>

CompanyData CompanyData::load(Connection &connection)
{
    Statement st(connection);
    st.add(QStringLiteral("Select * from Dane_firmy "));
    st.exec();
    CompanyData data;
    if (st.atEnd())
        return data;
    const std::pair<QString CompanyData::*, const char *> columns[] = {
        {&CompanyData::NAZWA, "NAZWA"},
        {&CompanyData::KOD, "KOD"},
        {&CompanyData::MIEJSCOWOSC, "MIEJSCOWOSC"},
        {&CompanyData::ADRES, "ADRES"},
        {&CompanyData::POBOX, "POBOX"},
        {&CompanyData::NIP, "NIP"},
        {&CompanyData::REGON, "REGON"},
        {&CompanyData::KONTAKT1, "KONTAKT1"},
        {&CompanyData::KONTAKT2, "KONTAKT2"},
        {&CompanyData::KONTAKT3, "KONTAKT3"},
        {&CompanyData::KONTAKT4, "KONTAKT4"},
        {&CompanyData::KONTAKT5, "KONTAKT5"},
        {&CompanyData::KONTAKT6, "KONTAKT6"},
        {&CompanyData::MIEJSCE_WYSTAWIANIA, "MIEJSCE_WYSTAWIANIA"},
        {&CompanyData::WOJEWODZTWO, "WOJEWODZTWO"},
        {&CompanyData::EURONIP_1, "EURONIP_1"},
        {&CompanyData::EURONIP_2, "EURONIP_2"},
        {&CompanyData::EURONIP_3, "EURONIP_3"},
    };
    for (const auto &[field, column] : columns)
        data.*field = st.string(QLatin1String(column));
    return data;
}
