#include "TfrmAddEditTowaryNaZleceniu.h"

#include "KeyedLists.h"
#include "ReportFailures.h"
#include "TBitBtn.h"
#include "TNumberEdit.h"

#include <QCollator>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

QLabel *fieldLabel(const QString &caption, QWidget *field, QWidget *parent)
{
    auto *label = new QLabel(caption, parent);
    label->setBuddy(field);
    return label;
}

} // namespace

TfrmAddEditTowaryNaZleceniu::TfrmAddEditTowaryNaZleceniu(QWidget *owner, const TTowaryObj &goods,
                                                         int mode)
    : TfrmRODefault(owner), m_goods(goods), m_mode(mode)
{
    setObjectName(QStringLiteral("frmAddEditTowaryNaZleceniu"));
    const QString title = mode == Add ? QStringLiteral("Wprowadzanie danych")
                                      : QStringLiteral("Edycja danych");
    setWindowTitle(title);
    lblHeader->setText(title);

    cbNazwa = new QComboBox(pnlClient);
    cbNazwa->setObjectName(QStringLiteral("cbNazwa"));
    cbNazwa->setEditable(true);
    cbNazwa->setInsertPolicy(QComboBox::NoInsert);
    cbNazwa->lineEdit()->setMaxLength(TextLength);
    edADR = new QLineEdit(pnlClient);
    edADR->setObjectName(QStringLiteral("edADR"));
    edADR->setMaxLength(TextLength);
    edDodatkowyOpis = new QLineEdit(pnlClient);
    edDodatkowyOpis->setObjectName(QStringLiteral("edDodatkowyOpis"));
    edDodatkowyOpis->setMaxLength(TextLength);
    edIloscDekl = new TNumberEdit(QStringLiteral(",0.00"), 4, 999999999.0, pnlClient);
    edIloscDekl->setObjectName(QStringLiteral("edIloscDekl"));
    edIloscRzecz = new TNumberEdit(QStringLiteral(",0.00"), 4, 999999999.0, pnlClient);
    edIloscRzecz->setObjectName(QStringLiteral("edIloscRzecz"));
    cbJM = new QComboBox(pnlClient);
    cbJM->setObjectName(QStringLiteral("cbJM"));

    lblNazwa = fieldLabel(QStringLiteral("Nazwa:"), cbNazwa, pnlClient);
    lblADR = fieldLabel(QStringLiteral("ADR:"), edADR, pnlClient);
    lblOpis = fieldLabel(QStringLiteral("Opis :"), edDodatkowyOpis, pnlClient);
    lblIloscDekl = fieldLabel(QStringLiteral("Ilość palet:"), edIloscDekl, pnlClient);
    lblIloscRzecz = fieldLabel(QStringLiteral("Ciężar:"), edIloscRzecz, pnlClient);
    lblJM = fieldLabel(QStringLiteral("Jednostka miary:"), cbJM, pnlClient);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    const std::pair<QLabel *, QWidget *> rows[] = {
        {lblNazwa, cbNazwa},         {lblADR, edADR},           {lblOpis, edDodatkowyOpis},
        {lblIloscDekl, edIloscDekl}, {lblIloscRzecz, edIloscRzecz}, {lblJM, cbJM}};
    int row = 0;
    for (const auto &[label, field] : rows) {
        layout->addWidget(label, row, 0);
        layout->addWidget(field, row++, 1);
    }
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(row, 1);
    resize(440, 300);

    // Saving first; the base form closes with OK after this handler ran.
    connect(btnOk, &TBitBtn::clicked, this, &TfrmAddEditTowaryNaZleceniu::btnOkClick);
}

void TfrmAddEditTowaryNaZleceniu::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    Connection &connection = m_goods.connection();
    KeyedLists::fillUnits(cbJM, connection);
    QStringList names;
    // Without the earlier names the field still takes a typed one.
    reportFailures(QStringLiteral("Nie można odczytać nazw towarów"),
                   [&] { names = m_goods.SelectDistinct(QStringLiteral("NAZWA")); });
    names.removeAll(QString());
    QCollator collator{QLocale(QLocale::Polish, QLocale::Poland)};
    std::sort(names.begin(), names.end(),
              [&](const QString &a, const QString &b) { return collator.compare(a, b) < 0; });
    cbNazwa->addItems(names);
    cbNazwa->setCurrentIndex(-1);
}

void TfrmAddEditTowaryNaZleceniu::FormShow()
{
    TfrmRODefault::FormShow();
    if (m_mode == Edit) {
        cbNazwa->setEditText(m_goods.NAZWA.left(TextLength));
        edADR->setText(m_goods.NUMER1);
        edDodatkowyOpis->setText(m_goods.NUMER2);
        edIloscDekl->setValue(m_goods.ILOSC_DEKLAROWANA);
        edIloscRzecz->setValue(m_goods.ILOSC);
        if (!KeyedLists::selectKey(cbJM, m_goods.ID_JEDNOSTKI_MIARY))
            cbJM->setCurrentIndex(cbJM->count() > 0 ? 0 : -1);
    } else {
        cbJM->setCurrentIndex(cbJM->count() > 0 ? 0 : -1);
    }
}

void TfrmAddEditTowaryNaZleceniu::btnOkClick()
{
    m_goods.NAZWA = cbNazwa->currentText().left(TextLength);
    m_goods.NUMER1 = edADR->text().left(TextLength);
    m_goods.NUMER2 = edDodatkowyOpis->text().left(TextLength);
    m_goods.ILOSC_DEKLAROWANA = edIloscDekl->value();
    m_goods.ILOSC = edIloscRzecz->value();
    m_goods.ID_JEDNOSTKI_MIARY = KeyedLists::currentKey(cbJM);
    if (m_mode == Add)
        m_goods.Insert();
    else
        m_goods.Update();
}
