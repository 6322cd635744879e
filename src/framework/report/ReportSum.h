#pragma once

#include <QString>
#include <QVariant>

#include <functional>

class ReportGroup;

// The sum of an expression over the detail rows printed so far, started
// afresh after each footer of its group (never, without a group).
class ReportSum
{
public:
    using Expression = std::function<double()>;

    ReportSum(const QString &name, Expression expression, const ReportGroup *resetGroup);

    const QString &name() const { return m_name; }
    const ReportGroup *resetGroup() const { return m_resetGroup; }

    double value() const { return m_value; }
    int count() const { return m_count; }
    // For a label: the sum as it stands when the label prints.
    std::function<QVariant()> valueFunction() const;

    void addCurrentRow();
    void reset();

private:
    QString m_name;
    Expression m_expression;
    const ReportGroup *m_resetGroup;
    double m_value = 0.0;
    int m_count = 0;
};
