#include "TfrmAdvancedEdit.h"

#include "SessionContext.h"
#include "TBitBtn.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

TfrmAdvancedEdit::TfrmAdvancedEdit(QWidget *owner, int orderKey)
    : TfrmRODefault(owner), m_orderKey(orderKey)
{
    setObjectName(QStringLiteral("frmAdvancedEdit"));
    setWindowTitle(QStringLiteral("Zaawansowana edycja"));
    lblHeader->setText(QStringLiteral("Edycja zlecenia"));
    lblHeaderDescription->setText(
        QStringLiteral("Zaawansowana edycja zlecenia. Używać tylko w szczególnych przypadkach."));

    lblWypisal = new QLabel(QStringLiteral("Wypisał :"), pnlClient);
    lblWypisal->setObjectName(QStringLiteral("lblWypisal"));
    cbWypisal = new QComboBox(pnlClient);
    cbWypisal->setObjectName(QStringLiteral("cbWypisal"));
    cbWypisal->setMinimumWidth(260);
    lblWypisal->setBuddy(cbWypisal);
    lblKategoria = new QLabel(QStringLiteral("Kategoria:"), pnlClient);
    lblKategoria->setObjectName(QStringLiteral("lblKategoria"));
    lblKategoria->hide();

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(lblWypisal, 0, 0);
    layout->addWidget(cbWypisal, 0, 1);
    layout->addWidget(lblKategoria, 1, 0);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);

    connect(btnOk, &TBitBtn::clicked, this, &TfrmAdvancedEdit::btnOkClick);
}

void TfrmAdvancedEdit::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    setROShowHeader(true);
    TfrmRODefault::FormCreate();

    Connection *database = session().Database;
    if (!database)
        return;
    const TUsersObj users(*database);
    for (const TUsersObj &user : users.SelectAll(QStringLiteral("NAZWISKO")))
        cbWypisal->addItem(user.IMIE + u' ' + user.NAZWISKO, user.ID_USER);
    cbWypisal->setCurrentIndex(-1);
    m_order = TZlecenia_przychObj(*database).SelectById(m_orderKey);
}

void TfrmAdvancedEdit::FormShow()
{
    TfrmRODefault::FormShow();
    if (m_order)
        cbWypisal->setCurrentIndex(cbWypisal->findData(m_order->IDUSER));
}

void TfrmAdvancedEdit::btnOkClick()
{
    if (!m_order)
        return;
    if (cbWypisal->currentIndex() >= 0)
        m_order->IDUSER = cbWypisal->currentData().toInt();
    m_order->Update();
}
