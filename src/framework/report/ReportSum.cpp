#include "ReportSum.h"

ReportSum::ReportSum(const QString &name, Expression expression, const ReportGroup *resetGroup)
    : m_name(name), m_expression(std::move(expression)), m_resetGroup(resetGroup)
{
}

std::function<QVariant()> ReportSum::valueFunction() const
{
    return [this] { return QVariant(m_value); };
}

void ReportSum::addCurrentRow()
{
    m_value += m_expression();
    ++m_count;
}

void ReportSum::reset()
{
    m_value = 0.0;
    m_count = 0;
}
