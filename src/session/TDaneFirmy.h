#pragma once

#include "CompanyData.h"
#include "DateTime.h"
#include "SessionContext.h"
#include "SettingsFile.h"
#include "SiblingModules.h"

#include <QString>
#include <QVariant>

class QObject;

// The session-wide service object every form uses: the settings file and
// the application directory, the company's own data (loaded on creation),
// typed configuration values, the activity history, document numbers,
// user privileges, currency conversion, rounding and amounts in words, and
// the launchers of the suite's sibling modules. Its database work runs on
// the session's Database and Transaction, read at each call, so one object
// can outlive a change of session.
class TDaneFirmy : public CompanyData
{
public:
    explicit TDaneFirmy(const SessionContext &context = session(),
                        HostEnvironment host = HostEnvironment::current());

    // Reloads the company data. A failure leaves the texts empty and is
    // written to HaulixErrors.ini: a printout without a header beats none.
    void LoadCompanyData();

    QString GetSettingsFileName() const;
    // Without a trailing separator; writes the executable's directory into
    // the settings file first when it has none.
    QString GetAppPath() const;

    // See Configuration: names come from program code only and are written
    // into the statement text; errors give the default and are logged.
    int GetConfigInt(const QString &name) const;
    QString GetConfigString(const QString &name) const;
    double GetConfigFloat(const QString &name) const;   // name in upper case
    bool GetConfigBool(const QString &name) const;      // name in upper case

    static QString GetComputerName();   // at most 16 characters
    static QString GetLoginName();      // at most 51 characters

    // One row of HISTORY: the session user, now, this computer and login,
    // OPERACJA = operation, GRUPA = key, HISTORY_PARAMS = values (a list is
    // joined with ","). Runs in its own transaction scope on the session's
    // Transaction (a savepoint when one is running). Returns whether the
    // row was stored; a failed insert has shown its message already.
    bool WriteHistory(const QVariant &values, int operation, int key) const;

    static QString FormatDocumentNumber(const QString &mask, int number, const QString &text,
                                        DateTime date);

    // kind: Privileges::Run, Add, Delete or Edit. The form's C++ class name
    // is what FORMS names. DbError reaches the caller; forms use
    // Privileges::require, which shows the refusal.
    bool CheckPrivilege(int kind, const QObject *form, int userID) const;
    int GetFormID(const QObject *form) const;

    // In/out arguments as the order editor and invoicing use them: a
    // tableID below 1 asks for the latest table on or before date (both
    // written back, tableID -1 when none). quantity 0 means no rate, and
    // then 0 is returned. The domestic currency ("IDWalutyKrajowej") gives
    // rate 1 and quantity 1 without a query and the amount to the cent.
    // DbError reaches the caller.
    double ConvertCurrency(int &tableID, int currencyID, DateTime &date, int &quantity,
                           double &rate, int nameLength, QString &tableNumber,
                           double amount) const;
    static double RoundTo2(double amount);
    static QString AmountInWords(double amount);

    // Selection windows of the sibling modules. 1 when a record was chosen
    // (its key in selectedID); 0 with selectedID unchanged when cancelled
    // or when the library is missing (after the message naming it).
    int SelectDriver(int currentID, int &selectedID) const;
    int SelectPlace(int currentID, int &selectedID) const;
    int SelectCity(int currentID, int &selectedID) const;
    int SelectVehicle(int currentID, int &selectedID) const;
    int SelectTrailer(int currentID, int &selectedID) const;
    int SelectContractor(int currentID, int &selectedID) const;
    // The road-card module's editor for a card; true when it saved it.
    bool EditRoadCard(int cardID) const;
    // The scheduler's calendar (BtnKalendarz1) and appointments
    // (BitBtnTerminarz); false when the library is missing.
    bool ShowScheduler() const;
    bool ShowAppointments() const;

private:
    Connection &database() const;
    SiblingModules siblings() const;

    const SessionContext &m_context;
    HostEnvironment m_host;
};
