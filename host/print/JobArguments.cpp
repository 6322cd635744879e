#include "JobArguments.h"

#include <stdexcept>

void JobArguments::refuse(const QString &text)
{
    throw std::invalid_argument(text.toStdString());
}

int JobArguments::keyOf(const QString &argument)
{
    bool ok = false;
    const int key = argument.toInt(&ok);
    if (!ok || key < 1)
        refuse(QStringLiteral("Identyfikator musi być dodatnią liczbą całkowitą: ") + argument);
    return key;
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

int JobArguments::optionKey(const QStringList &arguments, const QString &option,
                            const QString &subject)
{
    const qsizetype at = arguments.indexOf(option);
    if (at < 0)
        return 0;
    bool ok = false;
    const int key = arguments.value(at + 1).toInt(&ok);
    if (!ok || key < 1) {
        refuse(subject + QStringLiteral(" musi być dodatnią liczbą całkowitą: ")
               + arguments.value(at + 1));
    }
    return key;
}
