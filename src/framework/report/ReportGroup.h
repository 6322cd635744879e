#pragma once

#include "ReportBand.h"

#include <QString>
#include <QVariant>

#include <functional>
#include <memory>

// A run of detail rows sharing one key value. The header prints before the
// first row of each run, the footer after its last.
class ReportGroup
{
public:
    using KeyFunction = std::function<QVariant()>;

    ReportGroup(const QString &name, KeyFunction key);

    const QString &name() const { return m_name; }
    QVariant key() const { return m_key(); }

    ReportBand &addHeader(const QString &name, double heightMm);
    ReportBand &addFooter(const QString &name, double heightMm);
    ReportBand *header() const { return m_header.get(); }
    ReportBand *footer() const { return m_footer.get(); }

    // The header is printed again at the top of a page the run continues on.
    bool reprintHeaderOnNewPage() const { return m_reprintHeader; }
    void setReprintHeaderOnNewPage(bool reprint) { m_reprintHeader = reprint; }

private:
    QString m_name;
    KeyFunction m_key;
    std::unique_ptr<ReportBand> m_header;
    std::unique_ptr<ReportBand> m_footer;
    bool m_reprintHeader = false;
};
