#include "CommandArguments.h"

std::optional<CommandArguments> CommandArguments::parse(const QStringList &words, int positional,
                                                        const QStringList &options,
                                                        QString &error)
{
    CommandArguments result;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString &word = words.at(i);
        if (!word.startsWith(QLatin1String("--"))) {
            result.m_positional << word;
            continue;
        }
        const QString name = word.mid(2);
        if (!options.contains(name)) {
            error = QStringLiteral("Nieznana opcja: %1").arg(word);
            return std::nullopt;
        }
        if (i + 1 >= words.size() || result.m_options.contains(name)) {
            error = QStringLiteral("Opcja %1 wymaga jednej wartości.").arg(word);
            return std::nullopt;
        }
        result.m_options.insert(name, words.at(++i));
    }
    if (result.m_positional.size() != positional) {
        error = QStringLiteral("Zła liczba argumentów.");
        return std::nullopt;
    }
    return result;
}
