#include "TfrmStatementChoice.h"

#include "MessageService.h"
#include "PeriodProblem.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

TfrmStatementChoice::TfrmStatementChoice(QWidget *owner, const QString &partyCaption,
                                         int partyKey)
    : TfrmRODefault(owner), m_partyKey(partyKey)
{
    setWindowTitle(QStringLiteral("Podaj dane "));
    btnOk->setText(QStringLiteral("&Podgląd"));
    btnOk->setModalResult(0);

    Label1 = new QLabel(partyCaption, pnlClient);
    Label1->setObjectName(QStringLiteral("Label1"));
    cbWybor = new QComboBox(pnlClient);
    cbWybor->setObjectName(QStringLiteral("cbWybor"));
    cbWybor->setMinimumWidth(220);
    Label1->setBuddy(cbWybor);
    cbWszyscy = new QCheckBox(QStringLiteral("Wszyscy"), pnlClient);
    cbWszyscy->setObjectName(QStringLiteral("cbWszyscy"));
    cbWszyscy->setChecked(partyKey == 0);
    cbWybor->setEnabled(partyKey != 0);

    const ReportPeriod month = ReportPeriod::monthOf(QDate::currentDate());
    lblOd = new QLabel(QStringLiteral("Data od :"), pnlClient);
    lblOd->setObjectName(QStringLiteral("lblOd"));
    deOd = new TDateEdit(pnlClient);
    deOd->setObjectName(QStringLiteral("deOd"));
    deOd->setDate(month.from);
    lblOd->setBuddy(deOd);
    lblDo = new QLabel(QStringLiteral("Data do :"), pnlClient);
    lblDo->setObjectName(QStringLiteral("lblDo"));
    deDo = new TDateEdit(pnlClient);
    deDo->setObjectName(QStringLiteral("deDo"));
    deDo->setDate(month.to);
    lblDo->setBuddy(deDo);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(Label1, 0, 0);
    layout->addWidget(cbWybor, 0, 1, 1, 3);
    layout->addWidget(cbWszyscy, 1, 1, 1, 3);
    layout->addWidget(lblOd, 2, 0);
    layout->addWidget(deOd, 2, 1);
    layout->addWidget(lblDo, 2, 2);
    layout->addWidget(deDo, 2, 3);
    layout->setColumnStretch(4, 1);
    layout->setRowStretch(3, 1);

    connect(cbWszyscy, &QCheckBox::toggled, cbWybor,
            [this](bool all) { cbWybor->setEnabled(!all); });
    connect(btnOk, &TBitBtn::clicked, this, &TfrmStatementChoice::btnOkClick);
    resize(500, 260);
}

void TfrmStatementChoice::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    Connection *database = session().Database;
    if (!database)
        return;
    reportFailures(QStringLiteral("Nie można odczytać listy do wyboru"), [&] {
        for (const StatementParties::Party &party : parties(*database))
            cbWybor->addItem(party.name, party.key);
    });
    cbWybor->setCurrentIndex(cbWybor->findData(m_partyKey));
}

int TfrmStatementChoice::party() const
{
    return cbWszyscy->isChecked() ? 0 : cbWybor->currentData().toInt();
}

ReportPeriod TfrmStatementChoice::period() const
{
    return {deOd->value().date(), deDo->value().date()};
}

void TfrmStatementChoice::btnOkClick()
{
    Connection *database = session().Database;
    if (!database || !complete())
        return;
    preview(*database);
    done(mrOk);
}

bool TfrmStatementChoice::complete()
{
    const auto refuse = [this](const QString &text, QWidget *field) {
        Messages::inform(lblHeader->text(), text, MessageService::Icon::Warning);
        field->setFocus();
        return false;
    };
    if (!cbWszyscy->isChecked() && cbWybor->currentIndex() < 0)
        return refuse(QStringLiteral("Wybierz z listy albo zaznacz „Wszyscy”."), cbWybor);
    const std::optional<PeriodProblem> problem = PeriodProblem::of(
        deOd, deDo, QStringLiteral("Data od : nie może być późniejsza niż Data do :."));
    return problem ? refuse(problem->text, problem->field) : true;
}
