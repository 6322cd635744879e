#include "TDaneFirmy.h"

#include "AmountInWords.h"
#include "Configuration.h"
#include "Connection.h"
#include "CurrencyConversion.h"
#include "DbError.h"
#include "DocumentNumber.h"
#include "ErrorLog.h"
#include "Money.h"
#include "Privileges.h"
#include "SiblingModules.h"
#include "THistoryObj.h"
#include "Transaction.h"
#include "Workstation.h"

#include <QStringList>

#include <utility>

namespace {

QString historyText(const QVariant &values)
{
    const int type = values.typeId();
    if (type != QMetaType::QVariantList && type != QMetaType::QStringList)
        return values.toString();
    QStringList texts;
    for (const QVariant &value : values.toList())
        texts << value.toString();
    return texts.join(QLatin1Char(','));
}

} // namespace

TDaneFirmy::TDaneFirmy(const SessionContext &context, HostEnvironment host)
    : m_context(context), m_host(std::move(host))
{
    LoadCompanyData();
}

Connection &TDaneFirmy::database() const
{
    if (!m_context.Database)
        throw DbError(QStringLiteral("Brak połączenia z bazą danych"));
    return *m_context.Database;
}

void TDaneFirmy::LoadCompanyData()
{
    CompanyData &data = *this;
    try {
        data = CompanyData::load(database());
    } catch (const DbError &error) {
        data = CompanyData();
        ErrorLog::write(ErrorLog::HaulixErrors, error.message());
    }
}

QString TDaneFirmy::GetSettingsFileName() const
{
    return SettingsFile::fileName(m_host);
}

QString TDaneFirmy::GetAppPath() const
{
    return SettingsFile::appPath(GetSettingsFileName(), m_host.executableDir);
}

int TDaneFirmy::GetConfigInt(const QString &name) const
{
    return Configuration(m_context.Database).GetConfigInt(name);
}

QString TDaneFirmy::GetConfigString(const QString &name) const
{
    return Configuration(m_context.Database).GetConfigString(name);
}

double TDaneFirmy::GetConfigFloat(const QString &name) const
{
    return Configuration(m_context.Database).GetConfigFloat(name);
}

bool TDaneFirmy::GetConfigBool(const QString &name) const
{
    return Configuration(m_context.Database).GetConfigBool(name);
}

QString TDaneFirmy::GetComputerName()
{
    return Workstation::computerName();
}

QString TDaneFirmy::GetLoginName()
{
    return Workstation::loginName();
}

bool TDaneFirmy::WriteHistory(const QVariant &values, int operation, int key) const
{
    try {
        THistoryObj history(database());
        history.USERID = m_context.UserID;
        history.OPERACJA = operation;
        history.GRUPA = key;
        history.HISTORY_PARAMS = historyText(values);
        history.CZAS = DateTime::now();
        history.COMPNAME = GetComputerName();
        history.COMPUSER = GetLoginName();

        TransactionScope scope(m_context.transaction());
        if (!history.Insert())
            return false;
        scope.commit();
        return true;
    } catch (const DbError &error) {
        ErrorLog::write(ErrorLog::HaulixErrors, error.message());
        return false;
    }
}

QString TDaneFirmy::FormatDocumentNumber(const QString &mask, int number, const QString &text,
                                         DateTime date)
{
    return DocumentNumber::format(mask, number, text, date);
}

bool TDaneFirmy::CheckPrivilege(int kind, const QObject *form, int userID) const
{
    return Privileges::check(database(), kind, Privileges::formClass(form), userID);
}

int TDaneFirmy::GetFormID(const QObject *form) const
{
    return Privileges::formID(database(), Privileges::formClass(form));
}

double TDaneFirmy::ConvertCurrency(int &tableID, int currencyID, DateTime &date, int &quantity,
                                   double &rate, int nameLength, QString &tableNumber,
                                   double amount) const
{
    const int domestic = GetConfigInt(QStringLiteral("IDWalutyKrajowej"));
    const CurrencyConversion::Rate found = CurrencyConversion::convert(
        database(), domestic, tableID, currencyID, date, nameLength, amount);
    quantity = found.quantity;
    rate = found.rate;
    if (currencyID != domestic) {
        tableID = found.tableID;
        date = found.date;
        tableNumber = found.tableNumber;
    }
    return found.amount;
}

double TDaneFirmy::RoundTo2(double amount)
{
    return Money::RoundTo2(amount);
}

QString TDaneFirmy::AmountInWords(double amount)
{
    return AmountInWords::words(amount);
}

SiblingModules TDaneFirmy::siblings() const
{
    return SiblingModules(GetAppPath(), m_context);
}

int TDaneFirmy::SelectDriver(int currentID, int &selectedID) const
{
    return siblings().select(SiblingModules::Register::Drivers, currentID, selectedID);
}

int TDaneFirmy::SelectPlace(int currentID, int &selectedID) const
{
    return siblings().select(SiblingModules::Register::Places, currentID, selectedID);
}

int TDaneFirmy::SelectCity(int currentID, int &selectedID) const
{
    return siblings().select(SiblingModules::Register::Cities, currentID, selectedID);
}

int TDaneFirmy::SelectVehicle(int currentID, int &selectedID) const
{
    return siblings().select(SiblingModules::Register::Vehicles, currentID, selectedID);
}

int TDaneFirmy::SelectTrailer(int currentID, int &selectedID) const
{
    return siblings().select(SiblingModules::Register::Trailers, currentID, selectedID);
}

int TDaneFirmy::SelectContractor(int currentID, int &selectedID) const
{
    return siblings().select(SiblingModules::Register::Contractors, currentID, selectedID);
}

bool TDaneFirmy::EditRoadCard(int cardID) const
{
    return siblings().editRoadCard(cardID);
}

bool TDaneFirmy::ShowScheduler() const
{
    return siblings().showScheduler(SiblingModules::SchedulerView::Calendar);
}

bool TDaneFirmy::ShowAppointments() const
{
    return siblings().showScheduler(SiblingModules::SchedulerView::Appointments);
}
