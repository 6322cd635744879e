#include "MonthlyChart.h"

#include "Format.h"

#include <QBarCategoryAxis>
#include <QBarSeries>
#include <QBarSet>
#include <QChart>
#include <QGraphicsScene>
#include <QPainter>
#include <QValueAxis>

namespace {

const QString Title = QStringLiteral("Przychód, koszt i zysk w miesiącach");

QString money(double amount)
{
    return Format::number(amount, u"#,##0.00");
}

QBarSet *barSet(const QString &name, const QColor &colour)
{
    auto *set = new QBarSet(name);
    set->setColor(colour);
    set->setBorderColor(colour.darker(130));
    return set;
}

} // namespace

MonthlyChart::MonthlyChart(std::vector<MonthFigures> months) : m_months(std::move(months))
{
}

QString MonthlyChart::description() const
{
    QStringList months;
    for (const MonthFigures &m : m_months) {
        months << m.month.toString(QStringLiteral("yyyy-MM")) + u' ' + money(m.revenue)
                + QStringLiteral(" / ") + money(m.cost) + QStringLiteral(" / ")
                + money(m.profit());
    }
    return Title + QStringLiteral(": ") + months.join(QStringLiteral("; "));
}

void MonthlyChart::paint(QPainter &painter, const QRectF &target) const
{
    // The chart is laid out on a fixed logical canvas of the target's shape
    // and scaled into it, so its fonts keep their proportion on any device.
    constexpr double CanvasWidth = 1000.0;
    const QRectF canvas(0, 0, CanvasWidth, CanvasWidth * target.height() / target.width());

    auto *revenue = barSet(QStringLiteral("Przychód"), QColor(0x2f, 0x6f, 0xb3));
    auto *cost = barSet(QStringLiteral("Koszt"), QColor(0xc0, 0x50, 0x40));
    auto *profit = barSet(QStringLiteral("Zysk"), QColor(0x3a, 0x9a, 0x50));
    QStringList categories;
    double low = 0.0;
    double high = 0.0;
    for (const MonthFigures &m : m_months) {
        *revenue << m.revenue;
        *cost << m.cost;
        *profit << m.profit();
        categories << m.month.toString(QStringLiteral("yyyy-MM"));
        low = std::min({low, m.revenue, m.cost, m.profit()});
        high = std::max({high, m.revenue, m.cost, m.profit()});
    }
    auto *series = new QBarSeries;
    series->append({revenue, cost, profit});

    auto *chart = new QChart;
    chart->setAnimationOptions(QChart::NoAnimation);
    chart->setBackgroundVisible(false);
    chart->setTitle(Title);
    chart->addSeries(series);
    auto *months = new QBarCategoryAxis;
    months->append(categories);
    chart->addAxis(months, Qt::AlignBottom);
    series->attachAxis(months);
    auto *amounts = new QValueAxis;
    amounts->setRange(low, high > low ? high * 1.05 : low + 1.0);
    amounts->applyNiceNumbers();
    amounts->setLabelFormat(QStringLiteral("%.0f"));
    chart->addAxis(amounts, Qt::AlignLeft);
    series->attachAxis(amounts);
    chart->legend()->setAlignment(Qt::AlignBottom);
    chart->setGeometry(canvas);

    QGraphicsScene scene(canvas);
    scene.addItem(chart);   // the scene deletes it
    painter.setRenderHint(QPainter::Antialiasing);
    scene.render(&painter, target, canvas);
}
