#include "TfrmWyborKontrachentDaty1.h"

#include "TfrmZestawieniePrzewoznika.h"

#include <QLabel>

TfrmWyborKontrachentDaty1::TfrmWyborKontrachentDaty1(QWidget *owner, int carrierKey)
    : TfrmStatementChoice(owner, QStringLiteral("Przewoźnik"), carrierKey)
{
    setObjectName(QStringLiteral("frmWyborKontrachentDaty1"));
    lblHeader->setText(QStringLiteral("Kwota stawki na przewoźnika - koszt"));
}

std::vector<StatementParties::Party> TfrmWyborKontrachentDaty1::parties(Connection &connection)
{
    return StatementParties::contractors(connection);
}

void TfrmWyborKontrachentDaty1::preview(Connection &connection)
{
    TfrmZestawieniePrzewoznika(connection, period(), party()).Preview();
}
