#pragma once

#include "ReportPeriod.h"
#include "StatementParties.h"
#include "TfrmRODefault.h"

class Connection;
class QCheckBox;
class QComboBox;
class QLabel;
class TDateEdit;

// What the statements' dialogs share: one contractor or user, or all of
// them ("Wszyscy"), and the period, the current month at first. OK
// ("&Podgląd") previews the statement and closes with 1; a period that ends
// before it starts, a date that is not one, or no choice keeps the dialog
// open with a message.
class TfrmStatementChoice : public TfrmRODefault
{
    Q_OBJECT

public:
    // partyCaption: what is chosen ("Kontrahent"); partyKey: the one to
    // offer first, 0 for all.
    TfrmStatementChoice(QWidget *owner, const QString &partyCaption, int partyKey);

    // The chosen one's key, 0 for all.
    int party() const;
    ReportPeriod period() const;

    QLabel *Label1;
    QComboBox *cbWybor;
    QCheckBox *cbWszyscy;
    QLabel *lblOd;    // "Data od :"
    TDateEdit *deOd;
    QLabel *lblDo;    // "Data do :"
    TDateEdit *deDo;

protected:
    void FormCreate() override;
    // Whom to offer. Throws DbError.
    virtual std::vector<StatementParties::Party> parties(Connection &connection) = 0;
    virtual void preview(Connection &connection) = 0;

private:
    void btnOkClick();
    bool complete();

    int m_partyKey;
};
