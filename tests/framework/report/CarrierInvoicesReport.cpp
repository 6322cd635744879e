#include "CarrierInvoicesReport.h"

#include <QLocale>

std::vector<CarrierInvoice> sampleInvoices(int carriers, int perCarrier)
{
    static const QStringList names{QStringLiteral("Łódzki Transport"),
                                   QStringLiteral("Gdańska Spedycja"),
                                   QStringLiteral("Źródło Żwirowe"), QStringLiteral("Ośla Łąka")};
    std::vector<CarrierInvoice> rows;
    for (int c = 0; c < carriers; ++c) {
        for (int i = 0; i < perCarrier; ++i) {
            rows.push_back({names.at(c % names.size()) + QString::number(c / names.size() + 1),
                            QStringLiteral("FV/%1/%2").arg(c + 1).arg(i + 1),
                            100.0 * (c + 1) + 0.25 * i});
        }
    }
    return rows;
}

QString money(const QVariant &value)
{
    return QLocale().toString(value.toDouble(), 'f', 2);
}

CarrierInvoicesReport::CarrierInvoicesReport(std::vector<CarrierInvoice> rows)
    : m_rows(std::move(rows)), m_report(QStringLiteral("Faktury przewoźników"))
{
    m_report.setBeforePrint([this] { m_index = 0; });
    m_report.setNeedData([this] {
        if (m_index >= m_rows.size())
            return false;
        ++m_index;
        return true;
    });

    ReportBand &header = m_report.addBand(BandType::PageHeader, QStringLiteral("QRBandHeader"), 10);
    header.addLabel(QStringLiteral("lblTytul"), QRectF(0, 0, 190, 8),
                    QStringLiteral("Faktury przewoźników niezapłacone"))
        .setAlignment(Qt::AlignHCenter)
        .setBold(true)
        .setPointSize(12);

    ReportBand &columns
        = m_report.addBand(BandType::ColumnHeader, QStringLiteral("QRBandColumns"), 8);
    columns.addLabel(QStringLiteral("lblNumer"), QRectF(0, 0, 60, 8),
                     QStringLiteral("Numer Faktury"));
    columns.addLabel(QStringLiteral("lblKwota"), QRectF(140, 0, 50, 8),
                     QStringLiteral("Kwota do zapłaty Brutto w zł"))
        .setAlignment(Qt::AlignRight);
    columns.addLine(QPointF(0, 8), QPointF(190, 8), 0.3);

    m_group = &m_report.addGroup(QStringLiteral("QRGroupCarrier"),
                                 [this] { return current().carrier; });
    ReportBand &groupHeader = m_group->addHeader(QStringLiteral("QRGroupHeader"), 7);
    groupHeader.addLabel(QStringLiteral("lblPrzewoznik"), QRectF(0, 0, 190, 7))
        .setValue([this] { return current().carrier; })
        .setBold(true);

    ReportBand &detail = m_report.addBand(BandType::Detail, QStringLiteral("QRBandDetail"), 6);
    detail.addLabel(QStringLiteral("qrNumer"), QRectF(0, 0, 60, 6))
        .setValue([this] { return current().number; });
    detail.addLabel(QStringLiteral("qrKwota"), QRectF(140, 0, 50, 6))
        .setValue([this] { return current().amount; })
        .setFormatter(money)
        .setAlignment(Qt::AlignRight);

    // A caption at the left of the amount column and the sum under it.
    const auto addTotal = [](ReportBand &band, const QString &caption, const ReportSum &sum,
                             const QString &valueName) -> ReportLabel & {
        const double height = band.height();
        band.addLabel(QStringLiteral("lbl") + valueName, QRectF(100, 0, 40, height), caption);
        return band.addLabel(valueName, QRectF(140, 0, 50, height))
            .setValue(sum.valueFunction())
            .setFormatter(money)
            .setAlignment(Qt::AlignRight);
    };
    const auto amount = [this] { return current().amount; };
    const ReportSum &carrierSum = m_report.addSum(QStringLiteral("sumCarrier"), amount, m_group);
    addTotal(m_group->addFooter(QStringLiteral("QRGroupFooter"), 7), QStringLiteral("RAZEM ZŁ:"),
             carrierSum, QStringLiteral("qrSumaGrupy"))
        .setFrame(Qt::TopEdge);
    const ReportSum &total = m_report.addSum(QStringLiteral("sumTotal"), amount);
    addTotal(m_report.addBand(BandType::Summary, QStringLiteral("QRBandSummary"), 8),
             QStringLiteral("Ogólem :"), total, QStringLiteral("qrOgolem"))
        .setBold(true);

    ReportBand &footer = m_report.addBand(BandType::PageFooter, QStringLiteral("QRBandFooter"), 8);
    footer.addLabel(QStringLiteral("lblStrona"), QRectF(140, 2, 50, 6))
        .setPageText([](int page, int pageCount) {
            return QStringLiteral("Strona %1 z %2").arg(page).arg(pageCount);
        })
        .setAlignment(Qt::AlignRight);
}
