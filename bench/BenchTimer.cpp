#include "BenchTimer.h"

#include "Median.h"

#include <QElapsedTimer>

#include <cstdio>

double BenchTimer::measure(const QString &name, const std::function<void()> &step, int repetitions,
                           const std::function<void()> &prepare)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        if (prepare)
            prepare();
        QElapsedTimer timer;
        timer.start();
        step();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    const double middle = median(times);
    note(name, middle);
    return middle;
}

void BenchTimer::note(const QString &name, double milliseconds)
{
    m_figures.push_back({name, milliseconds});
    std::printf("%-48s %10.1f ms\n", qPrintable(name), milliseconds);
    std::fflush(stdout);
}

void BenchTimer::print() const
{
    std::printf("\n%-48s %10s\n", "step (median)", "time");
    for (const Figure &figure : m_figures)
        std::printf("%-48s %10.1f ms\n", qPrintable(figure.name), figure.milliseconds);
}
