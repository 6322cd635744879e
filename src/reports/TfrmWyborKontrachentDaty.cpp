#include "TfrmWyborKontrachentDaty.h"

#include "TfrmZestawienieKontrahenta.h"

#include <QLabel>

TfrmWyborKontrachentDaty::TfrmWyborKontrachentDaty(QWidget *owner, int clientKey)
    : TfrmStatementChoice(owner, QStringLiteral("Kontrahent"), clientKey)
{
    setObjectName(QStringLiteral("frmWyborKontrachentDaty"));
    lblHeader->setText(QStringLiteral("Kwoty dla kontrahenta - przychód, zysk"));
}

std::vector<StatementParties::Party> TfrmWyborKontrachentDaty::parties(Connection &connection)
{
    return StatementParties::contractors(connection);
}

void TfrmWyborKontrachentDaty::preview(Connection &connection)
{
    TfrmZestawienieKontrahenta(connection, period(), party()).Preview();
}
