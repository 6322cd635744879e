#include "TfrmKartaDrogowa.h"

#include "RoadCardItems.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TRadioGroup.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>

namespace {

constexpr int ExistingCard = 1;

} // namespace

TfrmKartaDrogowa::TfrmKartaDrogowa(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmKartaDrogowa"));
    setWindowTitle(QStringLiteral("Karta drogowa"));
    lblHeader->setText(QStringLiteral("Karta drogowa"));

    rbKarta = new TRadioGroup({QStringLiteral("Dodaj nową karte dla zlecenia"),
                               QStringLiteral("Przyporządkuj zlecenie wybranej karcie ")},
                              1, pnlClient);
    rbKarta->setObjectName(QStringLiteral("rbKarta"));
    rbKarta->setTitle(QStringLiteral("Operacje na karcie drogowej"));
    rbKarta->setItemIndex(0);
    lbKarta = new QLabel(QStringLiteral("Nr karty"), pnlClient);
    lbKarta->setObjectName(QStringLiteral("lbKarta"));
    cbKarta = new QComboBox(pnlClient);
    cbKarta->setObjectName(QStringLiteral("cbKarta"));
    lbKarta->setBuddy(cbKarta);
    lbKarta->hide();
    cbKarta->hide();

    btnWykonaj = btnOk;
    btnWykonaj->setObjectName(QStringLiteral("btnWykonaj"));
    btnWykonaj->setText(QStringLiteral("&Wykonaj"));
    btnAnuluj = btnCancel;
    btnAnuluj->setObjectName(QStringLiteral("btnAnuluj"));

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(rbKarta, 0, 0, 1, 2);
    layout->addWidget(lbKarta, 1, 0);
    layout->addWidget(cbKarta, 1, 1);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(2, 1);

    // The button's own toggle, so that choosing with the arrow keys counts
    // as much as a click.
    connect(rbKarta->button(ExistingCard), &QRadioButton::toggled, this,
            &TfrmKartaDrogowa::rbKartaClick);
    setFixedSize(440, 290);
}

int TfrmKartaDrogowa::choose(QWidget *owner)
{
    const auto dialog = TfrmRODefault::create<TfrmKartaDrogowa>(owner);
    dialog->showModal();
    return dialog->choice();
}

void TfrmKartaDrogowa::FormCreate()
{
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
}

void TfrmKartaDrogowa::FormShow()
{
    TfrmRODefault::FormShow();
    if (const QScreen *screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    Connection *database = session().Database;
    if (m_loaded || !database)
        return;
    m_loaded = true;
    for (const RoadCardItem &item : RoadCardItem::load(*database))
        cbKarta->addItem(item.text, item.cardKey);
    cbKarta->setCurrentIndex(cbKarta->count() > 0 ? 0 : -1);
}

void TfrmKartaDrogowa::rbKartaClick(bool existingCard)
{
    lbKarta->setVisible(existingCard);
    cbKarta->setVisible(existingCard);
}

int TfrmKartaDrogowa::choice() const
{
    if (result() != mrOk)
        return Cancelled;
    if (rbKarta->itemIndex() != ExistingCard)
        return NewCard;
    return cbKarta->currentIndex() < 0 ? Cancelled : cbKarta->currentData().toInt();
}
