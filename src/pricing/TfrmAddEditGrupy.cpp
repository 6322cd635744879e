#include "TfrmAddEditGrupy.h"

#include "TBitBtn.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

TfrmAddEditGrupy::TfrmAddEditGrupy(QWidget *owner, const QString &name, bool blocked)
    : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmAddEditGrupy"));
    setWindowTitle(QStringLiteral("Edycja grupy"));
    lblHeader->setText(QStringLiteral("Edycja grupy"));
    // Alt+Z saves here as in every other editor, so closing without
    // saving takes the next letter.
    btnCancel->setText(QStringLiteral("Za&mknij"));

    lblNazwa = new QLabel(QStringLiteral("Nazwa:"), pnlClient);
    lblNazwa->setObjectName(QStringLiteral("lblNazwa"));
    edNazwa = new QLineEdit(pnlClient);
    edNazwa->setObjectName(QStringLiteral("edNazwa"));
    edNazwa->setMaxLength(50);
    edNazwa->setText(name);
    lblNazwa->setBuddy(edNazwa);
    cbBlokada = new QCheckBox(QStringLiteral("Blokada"), pnlClient);
    cbBlokada->setObjectName(QStringLiteral("cbBlokada"));
    cbBlokada->setChecked(blocked);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->addWidget(lblNazwa, 0, 0);
    layout->addWidget(edNazwa, 0, 1);
    layout->addWidget(cbBlokada, 1, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);
    resize(380, 220);
}

QString TfrmAddEditGrupy::name() const
{
    return edNazwa->text();
}

bool TfrmAddEditGrupy::blocked() const
{
    return cbBlokada->isChecked();
}
