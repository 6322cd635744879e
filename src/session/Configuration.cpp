#include "Configuration.h"

#include "Connection.h"
#include "DbError.h"
#include "DocumentNumber.h"
#include "ErrorLog.h"
#include "Statement.h"

#include <QLocale>

#include <cmath>
#include <limits>
#include <optional>
#include <stdexcept>

namespace {

enum class NameMatch { Exact, UpperCase };

// The one row of a setting, read before the statement is freed.
struct Setting
{
    QString typ;
    int valueInt = 0;
    QString valueString;
    double valueFloat = 0.0;
    DateTime valueDate;
};

// A stored value that does not fit the type asked for.
class ConversionError : public std::runtime_error
{
public:
    explicit ConversionError(const QString &message)
        : std::runtime_error(message.toStdString())
    {
    }
};

void logFailure(const char *getter, const QString &name, const QString &message)
{
    ErrorLog::write(ErrorLog::HaulixErrors,
                    QStringLiteral("%1(%2): %3").arg(QLatin1String(getter), name, message));
}

std::optional<Setting> readSetting(Connection *connection, const QString &name, NameMatch match)
{
    if (!connection)
        throw DbError(QStringLiteral("Brak połączenia z bazą danych"));
    Statement st(*connection);
    st.add(QStringLiteral("SELECT * FROM KONFIGURACJA"));
    if (match == NameMatch::Exact)
        st.add(QStringLiteral("WHERE POLE='") + name + QLatin1Char('\''));
    else
        st.add(QStringLiteral("WHERE Upper(POLE)='") + name + QLatin1Char('\''));
    st.exec();
    if (st.atEnd())
        return std::nullopt;
    return Setting{st.string(QStringLiteral("TYP")),
                   st.integer(QStringLiteral("VALUE_INT")),
                   st.string(QStringLiteral("VALUE_STRING")),
                   st.number(QStringLiteral("VALUE_FLOAT")),
                   st.dateTime(QStringLiteral("VALUE_DATE"))};
}

template <class Value, class Convert>
Value readConverted(const char *getter, Connection *connection, const QString &name,
                    NameMatch match, Value fallback, Convert convert)
{
    try {
        if (const std::optional<Setting> setting = readSetting(connection, name, match))
            return convert(*setting);
    } catch (const DbError &error) {
        logFailure(getter, name, error.message());
    } catch (const ConversionError &error) {
        logFailure(getter, name, QString::fromStdString(error.what()));
    }
    return fallback;
}

int textToInt(const QString &text)
{
    bool ok = false;
    const int value = text.trimmed().toInt(&ok);
    if (!ok)
        throw ConversionError(QStringLiteral("'%1' nie jest liczbą całkowitą").arg(text));
    return value;
}

int roundToInt(double value)
{
    // Halves go to the even neighbour, as the processor rounds.
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<int>::min() && rounded <= std::numeric_limits<int>::max()))
        throw ConversionError(QStringLiteral("%1 nie mieści się w liczbie całkowitej").arg(value));
    return static_cast<int>(rounded);
}

double textToFloat(const QString &text)
{
    // Settings are typed in with the Polish decimal comma; a point is taken too.
    const QString trimmed = text.trimmed();
    bool ok = false;
    double value = QLocale(QLocale::Polish, QLocale::Poland).toDouble(trimmed, &ok);
    if (!ok)
        value = QLocale::c().toDouble(trimmed, &ok);
    if (!ok)
        throw ConversionError(QStringLiteral("'%1' nie jest liczbą").arg(text));
    return value;
}

QString floatToText(double value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'g', 15);
}

} // namespace

int Configuration::GetConfigInt(const QString &name) const
{
    return readConverted("GetConfigInt", m_connection, name, NameMatch::Exact, 0,
                         [](const Setting &s) {
        if (s.typ == QLatin1String("I") || s.typ == QLatin1String("B"))
            return s.valueInt;
        if (s.typ == QLatin1String("S"))
            return textToInt(s.valueString);
        if (s.typ == QLatin1String("F"))
            return roundToInt(s.valueFloat);
        return 0;
    });
}

QString Configuration::GetConfigString(const QString &name) const
{
    return readConverted("GetConfigString", m_connection, name, NameMatch::Exact, QString(),
                         [](const Setting &s) {
        if (s.typ == QLatin1String("I"))
            return QString::number(s.valueInt);
        if (s.typ == QLatin1String("S"))
            return s.valueString;
        if (s.typ == QLatin1String("D"))
            return DocumentNumber::dateText(s.valueDate);
        if (s.typ == QLatin1String("F"))
            return floatToText(s.valueFloat);
        return QString();
    });
}

double Configuration::GetConfigFloat(const QString &name) const
{
    return readConverted("GetConfigFloat", m_connection, name, NameMatch::UpperCase, 0.0,
                         [](const Setting &s) {
        if (s.typ == QLatin1String("I"))
            return static_cast<double>(s.valueInt);
        if (s.typ == QLatin1String("S"))
            return textToFloat(s.valueString);
        if (s.typ == QLatin1String("F"))
            return s.valueFloat;
        return 0.0;
    });
}

bool Configuration::GetConfigBool(const QString &name) const
{
    return readConverted("GetConfigBool", m_connection, name, NameMatch::UpperCase, false,
                         [](const Setting &s) {
        return (s.typ == QLatin1String("I") || s.typ == QLatin1String("B")) && s.valueInt != 0;
    });
}
