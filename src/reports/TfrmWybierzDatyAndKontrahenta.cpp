#include "TfrmWybierzDatyAndKontrahenta.h"

#include "MessageService.h"
#include "PeriodProblem.h"
#include "TBitBtn.h"
#include "TDateEdit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>

namespace {

const QString Caption = QStringLiteral("Zestawienie");

} // namespace

TfrmWybierzDatyAndKontrahenta::TfrmWybierzDatyAndKontrahenta(QWidget *owner)
    : TfrmRODefault(owner)
{
    setObjectName(QStringLiteral("frmWybierzDatyAndKontrahenta"));
    setWindowTitle(Caption);
    lblHeader->setText(QStringLiteral("Zestawienie faktur za okres"));
    btnOk->setText(QStringLiteral("&Dalej"));
    btnOk->setModalResult(0);

    const QDate today = QDate::currentDate();
    const QDate firstDay(today.year(), today.month(), 1);
    lblOd = new QLabel(QStringLiteral("Od dnia:"), pnlClient);
    lblOd->setObjectName(QStringLiteral("lblOd"));
    deOd = new TDateEdit(pnlClient);
    deOd->setObjectName(QStringLiteral("deOd"));
    deOd->setDate(firstDay);
    lblOd->setBuddy(deOd);
    lblDo = new QLabel(QStringLiteral("do dnia:"), pnlClient);
    lblDo->setObjectName(QStringLiteral("lblDo"));
    deDo = new TDateEdit(pnlClient);
    deDo->setObjectName(QStringLiteral("deDo"));
    deDo->setDate(QDate(today.year(), today.month(), today.daysInMonth()));
    lblDo->setBuddy(deDo);

    cbWlasny = new QCheckBox(QStringLiteral("&Wykonawca własny"), pnlClient);
    cbWlasny->setObjectName(QStringLiteral("cbWlasny"));
    cbPodglad = new QCheckBox(QStringLiteral("&Podgląd wydruku"), pnlClient);
    cbPodglad->setObjectName(QStringLiteral("cbPodglad"));
    cbPodglad->setChecked(true);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(lblOd, 0, 0);
    layout->addWidget(deOd, 0, 1);
    layout->addWidget(lblDo, 0, 2);
    layout->addWidget(deDo, 0, 3);
    layout->addWidget(cbWlasny, 1, 1, 1, 3);
    layout->addWidget(cbPodglad, 2, 1, 1, 3);
    layout->setColumnStretch(4, 1);
    layout->setRowStretch(3, 1);

    connect(btnOk, &TBitBtn::clicked, this, &TfrmWybierzDatyAndKontrahenta::btnOkClick);
    resize(440, 240);
}

void TfrmWybierzDatyAndKontrahenta::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
}

QDate TfrmWybierzDatyAndKontrahenta::from() const
{
    return deOd->value().date();
}

QDate TfrmWybierzDatyAndKontrahenta::to() const
{
    return deDo->value().date();
}

bool TfrmWybierzDatyAndKontrahenta::ownExecutor() const
{
    return cbWlasny->isChecked();
}

bool TfrmWybierzDatyAndKontrahenta::previewFirst() const
{
    return cbPodglad->isChecked();
}

void TfrmWybierzDatyAndKontrahenta::btnOkClick()
{
    if (complete())
        done(mrOk);
}

bool TfrmWybierzDatyAndKontrahenta::complete()
{
    const auto refuse = [](const QString &text, QWidget *field) {
        Messages::inform(Caption, text, MessageService::Icon::Warning);
        field->setFocus();
        return false;
    };
    const std::optional<PeriodProblem> problem = PeriodProblem::of(
        deOd, deDo,
        QStringLiteral("Okres kończy się przed swoim początkiem: "
                       "popraw daty „od dnia” i „do dnia”."));
    return problem ? refuse(problem->text, problem->field) : true;
}
