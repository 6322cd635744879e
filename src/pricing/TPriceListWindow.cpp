#include "TPriceListWindow.h"

#include "TBitBtn.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QLabel>

TPriceListWindow::TPriceListWindow(QWidget *owner, const QString &name) : TfrmRODefault(owner)
{
    setObjectName(name);
    setWindowTitle(QStringLiteral("Cennik"));
    setSizeGripEnabled(true);
    lblHeader->setText(QStringLiteral("Cennik"));
    lblHeaderDescription->setText(QStringLiteral("Edycja cennika"));
    btnOk->hide();
    btnCancel->setText(QStringLiteral("&Zamknij"));

    lblCennik = new QLabel(QStringLiteral("Cennik:"), pnlClient);
    cbCennik = new QComboBox(pnlClient);
    cbCennik->setObjectName(QStringLiteral("cbCennik"));
    cbCennik->setMinimumWidth(240);
    lblCennik->setBuddy(cbCennik);
    m_chooserRow = new QHBoxLayout;
    m_chooserRow->addWidget(lblCennik);
    m_chooserRow->addWidget(cbCennik);
    m_chooserRow->addStretch(1);
}
