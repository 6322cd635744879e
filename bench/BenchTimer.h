#pragma once

#include <QString>

#include <functional>
#include <vector>

// A small timing harness: runs a step a few times, keeps the median and
// prints one table at the end, so that figures of one run can be compared.
class BenchTimer
{
public:
    // prepare runs before each repetition and is not timed.
    double measure(const QString &name, const std::function<void()> &step, int repetitions = 3,
                   const std::function<void()> &prepare = {});
    void note(const QString &name, double milliseconds);
    void print() const;

private:
    struct Figure
    {
        QString name;
        double milliseconds;
    };
    std::vector<Figure> m_figures;
};
