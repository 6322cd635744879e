#include "TfrmWybierzDatyAndUsera1.h"

#include "TfrmPrintObrotyNaUseraFakt.h"
#include "TfrmPrintObrotyNaUseraFaktObca.h"
#include "TfrmPrintObrotyNaUseraZagr.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>

TfrmWybierzDatyAndUsera1::TfrmWybierzDatyAndUsera1(QWidget *owner, Kind kind, int userKey)
    : TfrmStatementChoice(owner, QStringLiteral("Spedytor"), userKey), m_kind(kind)
{
    setObjectName(QStringLiteral("frmWybierzDatyAndUsera1"));
    setWindowTitle(title(kind));
    lblHeader->setText(title(kind));
    // Every dispatcher first: the owner compares them.
    cbWszyscy->setChecked(true);
}

QString TfrmWybierzDatyAndUsera1::title(Kind kind)
{
    switch (kind) {
    case Invoices:
        return QStringLiteral("Zestawienie faktur na spedytora\\dysponenta");
    case CarrierInvoices:
        return QStringLiteral("Zestawienie faktur obcych na spedytora\\dysponenta");
    case Rates:
        break;
    }
    return QStringLiteral("Zestawienie stawek na spedytora\\dysponenta");
}

std::vector<StatementParties::Party> TfrmWybierzDatyAndUsera1::parties(Connection &connection)
{
    return StatementParties::users(connection);
}

void TfrmWybierzDatyAndUsera1::preview(Connection &connection)
{
    switch (m_kind) {
    case Rates:
        TfrmPrintObrotyNaUseraZagr(connection, period(), party()).Preview();
        return;
    case Invoices:
        TfrmPrintObrotyNaUseraFakt(connection, period(), party()).Preview();
        return;
    case CarrierInvoices:
        TfrmPrintObrotyNaUseraFaktObca(connection, period(), party()).Preview();
        return;
    }
}
