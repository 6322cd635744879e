#include "Report.h"

#include "MessageService.h"
#include "QtReportOutput.h"
#include "ReportFailures.h"
#include "ReportError.h"
#include "ReportPainter.h"
#include "ReportPreRenderer.h"
#include "StatementCursor.h"

#include <stdexcept>

Report::Report(const QString &title) : m_title(title)
{
}

Report::~Report() = default;

ReportBand &Report::addBand(BandType type, const QString &name, double heightMm)
{
    if (type == BandType::GroupHeader || type == BandType::GroupFooter) {
        throw std::invalid_argument(
            QStringLiteral("Sekcja %1 grupy należy do grupy").arg(name).toStdString());
    }
    return *m_bands.emplace_back(std::make_unique<ReportBand>(type, name, heightMm));
}

ReportGroup &Report::addGroup(const QString &name, ReportGroup::KeyFunction key)
{
    return *m_groups.emplace_back(std::make_unique<ReportGroup>(name, std::move(key)));
}

ReportSum &Report::addSum(const QString &name, ReportSum::Expression expression,
                          const ReportGroup *resetGroup)
{
    return *m_sums.emplace_back(
        std::make_unique<ReportSum>(name, std::move(expression), resetGroup));
}

ReportBand &Report::band(const QString &name)
{
    for (const auto &band : m_bands) {
        if (band->name() == name)
            return *band;
    }
    for (const auto &group : m_groups) {
        for (ReportBand *band : {group->header(), group->footer()}) {
            if (band && band->name() == name)
                return *band;
        }
    }
    throw std::invalid_argument(
        QStringLiteral("Raport %1 nie ma sekcji %2").arg(m_title, name).toStdString());
}

std::vector<ReportBand *> Report::bands(BandType type) const
{
    std::vector<ReportBand *> result;
    for (const auto &band : m_bands) {
        if (band->type() == type)
            result.push_back(band.get());
    }
    return result;
}

void Report::setDataSource(std::unique_ptr<ReportDataSource> source)
{
    m_dataSource = std::move(source);
}

void Report::setNeedData(std::function<bool()> moreData)
{
    m_dataSource = std::make_unique<NeedDataSource>(std::move(moreData));
}

StatementCursor &Report::setCursor(Statement &statement)
{
    auto cursor = std::make_unique<StatementCursor>(statement);
    StatementCursor &result = *cursor;
    m_dataSource = std::move(cursor);
    return result;
}

const std::vector<ReportPage> &Report::prepare()
{
    m_pages.clear();
    m_pageNumber = 0;
    if (m_beforePrint)
        m_beforePrint();
    m_pages = ReportPreRenderer(*this).run();
    return m_pages;
}

void Report::prepare(const std::function<void(ReportPage &&page)> &takePage)
{
    m_pages.clear();
    m_pageNumber = 0;
    if (m_beforePrint)
        m_beforePrint();
    ReportPreRenderer(*this, takePage).run();
}

bool Report::prepareShowingErrors()
{
    try {
        prepare();
        return true;
    } catch (const DbError &error) {
        // The engine's words and the statement are for the log.
        m_pages.clear();
        reportFailure(QStringLiteral("Nie można przygotować wydruku \"%1\".").arg(m_title), error);
        return false;
    } catch (const std::exception &error) {
        m_pages.clear();
        Messages::error(QStringLiteral("Nie można przygotować wydruku \"%1\".\n%2")
                            .arg(m_title, QString::fromUtf8(error.what())));
        return false;
    }
}

bool Report::preview()
{
    return ReportOutputs::instance().preview(*this);
}

bool Report::print()
{
    return ReportOutputs::instance().print(*this);
}

bool Report::exportPdf(const QString &path)
{
    if (!prepareShowingErrors())
        return false;
    try {
        ReportPainter::writePdf(path, m_pages, m_pageSetup, m_title);
        return true;
    } catch (const ReportError &error) {
        Messages::error(error.message());
        return false;
    }
}
