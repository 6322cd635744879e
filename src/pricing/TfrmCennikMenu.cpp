#include "TfrmCennikMenu.h"

#include "MessageService.h"
#include "PriceRanges.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TfrmCennikWierszeKolumny.h"
#include "TfrmCenniki.h"
#include "TfrmCennikiKontrahenci.h"

#include <QBoxLayout>
#include <QLabel>

namespace {

TBitBtn *menuButton(const QString &caption, const QString &name, QWidget *parent)
{
    TBitBtn *button = TBitBtn::create(caption, name, parent);
    button->setMinimumHeight(40);
    return button;
}

} // namespace

TfrmCennikMenu::TfrmCennikMenu(QWidget *owner) : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmCennikMenu"));
    setWindowTitle(QStringLiteral("Cennik"));
    lblHeader->setText(QStringLiteral("Menu cennik"));
    btnOk->hide();
    btnCancel->setText(QStringLiteral("&Zamknij"));

    BitBtn1 = menuButton(QStringLiteral("Edycja cenników"), QStringLiteral("BitBtn1"), pnlClient);
    btnEdPrezedzialy = menuButton(QStringLiteral("Edycja przedziałów i grup"),
                                  QStringLiteral("btnEdPrezedzialy"), pnlClient);
    BitBtn2 = menuButton(QStringLiteral("Kontrahenci-cenniki"), QStringLiteral("BitBtn2"),
                         pnlClient);
    BitBtn2->hide();
    auto *layout = new QVBoxLayout(pnlClient);
    layout->setContentsMargins(24, 16, 24, 16);
    layout->addWidget(BitBtn1);
    layout->addWidget(btnEdPrezedzialy);
    layout->addWidget(BitBtn2);
    layout->addStretch(1);

    connect(BitBtn1, &TBitBtn::clicked, this, &TfrmCennikMenu::BitBtn1Click);
    connect(btnEdPrezedzialy, &TBitBtn::clicked, this, &TfrmCennikMenu::btnEdPrezedzialyClick);
    connect(BitBtn2, &TBitBtn::clicked, this, &TfrmCennikMenu::BitBtn2Click);
    resize(360, 300);
}

void TfrmCennikMenu::BitBtn1Click()
{
    Connection *database = session().Database;
    if (!database)
        return;
    int ranges = 0;
    if (!reportFailures(QStringLiteral("Nie można policzyć przedziałów cennika"),
                     [&] { ranges = PriceRanges::totalCount(*database); }))
        return;
    // One row and one column pass, and so do two rows and no column.
    if (ranges < 2) {
        if (Messages::confirm(QStringLiteral("Cenniki"),
                              QStringLiteral("Musisz zdefiniować najpierw przedziały kilometrowe "
                                             "i wagowe. Chcesz to zrobić teraz?")))
            btnEdPrezedzialyClick();
        return;
    }
    TfrmRODefault::create<TfrmCenniki>(this)->showModal();
}

void TfrmCennikMenu::btnEdPrezedzialyClick()
{
    TfrmRODefault::create<TfrmCennikWierszeKolumny>(this)->showModal();
}

void TfrmCennikMenu::BitBtn2Click()
{
    TfrmRODefault::create<TfrmCennikiKontrahenci>(this)->showModal();
}
