#include "JobArguments.h"

#include <stdexcept>

void JobArguments::refuse(const QString &text)
{
    throw std::invalid_argument(text.toStdString());
}

QDate JobArguments::dayOf(const QString &argument)
{
    const QDate day = QDate::fromString(argument, Qt::ISODate);
    if (!day.isValid() || argument.size() != 10)
        refuse(QStringLiteral("Data musi mieć postać rrrr-mm-dd: %1").arg(argument));
    return day;
}

std::pair<QDate, QDate> JobArguments::periodOf(const QString &from, const QString &to)
{
    const std::pair<QDate, QDate> period{dayOf(from), dayOf(to)};
    if (period.first > period.second)
        refuse(QStringLiteral("Początek okresu jest późniejszy niż jego koniec."));
    return period;
}
