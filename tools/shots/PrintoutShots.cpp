#include "Connection.h"
#include "DemoSeeder.h"
#include "Report.h"
#include "ReportPainter.h"
#include "Schema.h"
#include "ShotBook.h"
#include "Shots.h"
#include "Statement.h"
#include "TfrmPrintReport.h"
#include "TfrmRachunekPL.h"
#include "TfrmZalacznik.h"

#include <QCoreApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QTemporaryDir>

namespace {

// The demo company the printouts are taken from, made on first use; the
// application owns it, so it closes before the program ends.
class PrintoutCompany : public QObject
{
public:
    PrintoutCompany() : QObject(QCoreApplication::instance())
    {
        const QString path = m_dir.filePath(QStringLiteral("printouts.fdb"));
        Schema::createDatabase(path, Schema::ForcedWrites::Off);
        m_connection.open(path);
        DemoSeeder::Options options;
        options.orders = 120;
        DemoSeeder(m_connection, options).seed();
    }

    Connection &connection() { return m_connection; }

private:
    QTemporaryDir m_dir;
    Connection m_connection;
};

} // namespace

Connection &demoCompany()
{
    static PrintoutCompany *company = new PrintoutCompany;
    return company->connection();
}

int demoKey(const QString &sql)
{
    Statement st(demoCompany());
    st.add(sql);
    st.exec();
    if (st.atEnd())
        throw std::runtime_error("the demo company has no such record");
    return st.integer(0);
}

std::unique_ptr<QWidget> firstPage(Report &report)
{
    return pageOf(report, false);
}

std::unique_ptr<QWidget> lastPage(Report &report)
{
    return pageOf(report, true);
}

std::unique_ptr<QWidget> pageOf(Report &report, bool last)
{
    const std::vector<ReportPage> &pages = report.prepare();
    const ReportPage &page = last ? pages.back() : pages.front();
    constexpr double dotsPerMm = 4.0;
    const QSizeF sheet = page.sizeMm;
    QImage image(int(sheet.width() * dotsPerMm), int(sheet.height() * dotsPerMm),
                 QImage::Format_RGB32);
    // Fonts are sized by the image's resolution: it must be the one the
    // pages are painted at.
    const int dotsPerMeter = qRound(dotsPerMm * 1000);
    image.setDotsPerMeterX(dotsPerMeter);
    image.setDotsPerMeterY(dotsPerMeter);
    image.fill(Qt::white);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        ReportPainter::paintPage(painter, page, dotsPerMm);
    }
    auto label = std::make_unique<QLabel>();
    label->setPixmap(QPixmap::fromImage(image));
    label->resize(image.size());
    return label;
}

namespace {

// An invoice for one order priced from a tariff, so that its rates show.
std::unique_ptr<QWidget> invoice()
{
    const int key = demoKey(QStringLiteral(
        "SELECT FIRST 1 z.IDFAKTURY FROM ZLECENIA_PRZYCH z WHERE z.IDFAKTURY > 0 AND z.IDTARYFY > 0"
        " AND (SELECT COUNT(*) FROM ZLECENIA_PRZYCH o WHERE o.IDFAKTURY = z.IDFAKTURY) = 1"
        " ORDER BY z.IDFAKTURY"));
    TfrmRachunekPL printout(demoCompany(), key);
    return firstPage(printout.qrRachunekPL());
}

// The attachment of the invoice that covers the most orders.
std::unique_ptr<QWidget> attachment()
{
    const int key = demoKey(QStringLiteral(
        "SELECT FIRST 1 IDFAKTURY FROM ZLECENIA_PRZYCH WHERE IDFAKTURY > 0"
        " GROUP BY IDFAKTURY ORDER BY COUNT(*) DESC, IDFAKTURY"));
    TfrmZalacznik printout(demoCompany(), key);
    return firstPage(printout.qrZalacznik());
}

// A transport order to an outside carrier.
std::unique_ptr<QWidget> transportOrder()
{
    const int key = demoKey(QStringLiteral(
        "SELECT FIRST 1 ID_ZLECENIA_PRZYCH FROM ZLECENIA_PRZYCH WHERE PRZEWOZNIKWLASNY = 0"
        " AND NUMER_OBCY <> '' AND DATA IS NOT NULL ORDER BY ID_ZLECENIA_PRZYCH"));
    TfrmPrintReport printout(demoCompany(), key);
    return firstPage(printout.qrZlecenie());
}

} // namespace

void addPrintoutShots(ShotBook &book)
{
    book.add(QStringLiteral("frmRachunekPL"), [](ShotContext &) { return invoice(); });
    book.add(QStringLiteral("frmZalacznik"), [](ShotContext &) { return attachment(); });
    book.add(QStringLiteral("frmPrintReport"), [](ShotContext &) { return transportOrder(); });
}
