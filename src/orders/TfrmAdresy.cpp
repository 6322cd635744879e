#include "TfrmAdresy.h"

#include "ClientAddresses.h"
#include "ReportFailures.h"
#include "TBitBtn.h"
#include "TZlecenia_przychObj.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr int LoadingPlace = 1;

QLineEdit *addressEdit(QWidget *parent, const QString &name, int length, int width)
{
    auto *edit = new QLineEdit(parent);
    edit->setObjectName(name);
    edit->setMaxLength(length);
    edit->setMinimumWidth(width);
    return edit;
}

} // namespace

TfrmAdresy::TfrmAdresy(QWidget *owner, const TMiejsca_zlecObj &place)
    : TfrmRODefault(owner), m_place(place)
{
    setObjectName(QStringLiteral("frmAdresy"));
    if (place.ID_ZRP == LoadingPlace) {
        setWindowTitle(QStringLiteral("Miejsca Załadunków "));
        lblHeader->setText(QStringLiteral("Miejsca załadunków"));
    } else {
        setWindowTitle(QStringLiteral("Miejsca Rozładunków"));
        lblHeader->setText(QStringLiteral("Miejsca rozładunków"));
    }
    btnCancel->setText(QStringLiteral("&Powrót"));
    buildRows();
    for (int i = 0; i < RowCount; ++i) {
        const TMiejsca_zlecObj::Slot slot = m_place.slot(i + 1);
        showSlot(i, slot);
    }
    connect(edNazwa[0], &QLineEdit::editingFinished, this, &TfrmAdresy::lookUpFirstName);
    connect(btnOk, &TBitBtn::clicked, this, &TfrmAdresy::btnOkClick);
}

void TfrmAdresy::buildRows()
{
    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setVerticalSpacing(3);
    const QString headers[] = {QStringLiteral("Nazwa"), QStringLiteral("Ulica"),
                               QStringLiteral("Kod"), QStringLiteral("Miejscowość")};
    for (int column = 0; column < 4; ++column) {
        auto *header = new QLabel(headers[column], pnlClient);
        header->setObjectName(QStringLiteral("lblKolumna%1").arg(column + 1));
        layout->addWidget(header, 0, column + 1);
    }
    for (int i = 0; i < RowCount; ++i) {
        const QString number = QString::number(i + 1);
        lblNumer[i] = new QLabel(number + u')', pnlClient);
        lblNumer[i]->setObjectName(QStringLiteral("lblNumer") + number);
        edNazwa[i] = addressEdit(pnlClient, QStringLiteral("edNazwa") + number, NameLength, 220);
        edUlica[i] = addressEdit(pnlClient, QStringLiteral("edUlica") + number, StreetLength, 220);
        edKod[i] = addressEdit(pnlClient, QStringLiteral("edKod") + number, PostcodeLength, 70);
        edMiejscowosc[i]
            = addressEdit(pnlClient, QStringLiteral("edMiejscowosc") + number, TownLength, 150);
        layout->addWidget(lblNumer[i], i + 1, 0, Qt::AlignRight);
        layout->addWidget(edNazwa[i], i + 1, 1);
        layout->addWidget(edUlica[i], i + 1, 2);
        layout->addWidget(edKod[i], i + 1, 3);
        layout->addWidget(edMiejscowosc[i], i + 1, 4);
    }
    layout->setColumnStretch(1, 3);
    layout->setColumnStretch(2, 3);
    layout->setColumnStretch(4, 2);
    layout->setRowStretch(RowCount + 1, 1);
}

void TfrmAdresy::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    const TZlecenia_przychObj order
        = TZlecenia_przychObj(m_place.connection()).SelectById(m_place.ID_ZLECENIA);
    m_clientKey = order.IDKONTRAHENTA != 0 ? order.IDKONTRAHENTA : m_place.ID_KONTRAHENT;
}

void TfrmAdresy::showSlot(int index, const TMiejsca_zlecObj::Slot &slot)
{
    edNazwa[index]->setText(slot.NAZWA);
    edUlica[index]->setText(slot.ADRES);
    edKod[index]->setText(slot.KOD);
    edMiejscowosc[index]->setText(slot.MIEJSCOWOSC);
    m_countries[index] = slot.ID_KRAJU;
}

void TfrmAdresy::lookUpFirstName()
{
    const QString typed = edNazwa[0]->text();
    if (typed.isEmpty() || m_clientKey == 0)
        return;
    reportFailures(QStringLiteral("Nie można odczytać adresów kontrahenta"), [&] {
        if (const auto known = ClientAddresses::find(m_place.connection(), m_clientKey, typed))
            showSlot(0, *known);
    });
}

void TfrmAdresy::btnOkClick()
{
    for (int i = 0; i < RowCount; ++i) {
        m_place.setSlot(i + 1, {edUlica[i]->text(), edKod[i]->text(), edMiejscowosc[i]->text(),
                                m_countries[i], edNazwa[i]->text()});
    }
    if (m_place.ID_KONTRAHENT == 0)
        m_place.ID_KONTRAHENT = m_clientKey;
    m_place.Update();
}
