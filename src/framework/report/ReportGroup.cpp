#include "ReportGroup.h"

ReportGroup::ReportGroup(const QString &name, KeyFunction key)
    : m_name(name), m_key(std::move(key))
{
}

ReportBand &ReportGroup::addHeader(const QString &name, double heightMm)
{
    m_header = std::make_unique<ReportBand>(BandType::GroupHeader, name, heightMm);
    return *m_header;
}

ReportBand &ReportGroup::addFooter(const QString &name, double heightMm)
{
    m_footer = std::make_unique<ReportBand>(BandType::GroupFooter, name, heightMm);
    return *m_footer;
}
