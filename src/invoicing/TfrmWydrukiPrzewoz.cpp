#include "TfrmWydrukiPrzewoz.h"

#include "MessageService.h"
#include "PeriodProblem.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TFrmNiezaplaconePrzewoz.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace {

const QString Caption = QStringLiteral("Faktury przewoźników");

} // namespace

TfrmWydrukiPrzewoz::TfrmWydrukiPrzewoz(QWidget *owner, int carrierKey,
                                       CarrierInvoiceList::Mode mode)
    : TfrmRODefault(owner), m_carrierKey(carrierKey), m_mode(mode)
{
    setObjectName(QStringLiteral("frmWydrukiPrzewoz"));
    setWindowTitle(QStringLiteral("Podaj dane "));
    lblHeader->setText(QStringLiteral("Faktury przewoźników za okres"));
    btnOk->setText(QStringLiteral("&Podgląd"));
    btnOk->setModalResult(0);

    Label1 = new QLabel(QStringLiteral("Wybierz przewoźnika"), pnlClient);
    Label1->setObjectName(QStringLiteral("Label1"));
    CBKontrahenci = new QComboBox(pnlClient);
    CBKontrahenci->setObjectName(QStringLiteral("CBKontrahenci"));
    CBKontrahenci->setMinimumWidth(220);
    Label1->setBuddy(CBKontrahenci);
    cbWszyscy = new QCheckBox(QStringLiteral("Wszyscy"), pnlClient);
    cbWszyscy->setObjectName(QStringLiteral("cbWszyscy"));
    cbWszyscy->setChecked(true);
    CBKontrahenci->setEnabled(false);

    const QDate today = QDate::currentDate();
    const QDate firstDay(today.year(), today.month(), 1);
    lblOd = new QLabel(QStringLiteral("Data od :"), pnlClient);
    lblOd->setObjectName(QStringLiteral("lblOd"));
    deOd = new TDateEdit(pnlClient);
    deOd->setObjectName(QStringLiteral("deOd"));
    deOd->setDate(firstDay);
    lblOd->setBuddy(deOd);
    lblDo = new QLabel(QStringLiteral("Data do :"), pnlClient);
    lblDo->setObjectName(QStringLiteral("lblDo"));
    deDo = new TDateEdit(pnlClient);
    deDo->setObjectName(QStringLiteral("deDo"));
    deDo->setDate(firstDay.addMonths(1).addDays(-1));
    lblDo->setBuddy(deDo);

    if (mode == CarrierInvoiceList::Unpaid) {
        for (QWidget *period : {static_cast<QWidget *>(lblOd), static_cast<QWidget *>(deOd),
                                static_cast<QWidget *>(lblDo), static_cast<QWidget *>(deDo)})
            period->hide();
        lblHeader->setText(QStringLiteral("Faktury przewoźnika niezapłacone"));
    }

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(Label1, 0, 0);
    layout->addWidget(CBKontrahenci, 0, 1, 1, 3);
    layout->addWidget(cbWszyscy, 1, 1, 1, 3);
    layout->addWidget(lblOd, 2, 0);
    layout->addWidget(deOd, 2, 1);
    layout->addWidget(lblDo, 2, 2);
    layout->addWidget(deDo, 2, 3);
    layout->setColumnStretch(4, 1);
    layout->setRowStretch(3, 1);

    connect(cbWszyscy, &QCheckBox::clicked, this, &TfrmWydrukiPrzewoz::cbWszyscyClick);
    connect(btnOk, &TBitBtn::clicked, this, &TfrmWydrukiPrzewoz::btnOkClick);
    resize(480, 260);
}

void TfrmWydrukiPrzewoz::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    Connection *database = session().Database;
    if (!database)
        return;
    reportFailures(QStringLiteral("Nie można odczytać listy przewoźników"), [&] {
        for (const CarrierInvoiceList::Carrier &carrier : CarrierInvoiceList::carriers(*database))
            CBKontrahenci->addItem(carrier.name, carrier.key);
    });
    CBKontrahenci->setCurrentIndex(CBKontrahenci->findData(m_carrierKey));
}

void TfrmWydrukiPrzewoz::cbWszyscyClick()
{
    CBKontrahenci->setEnabled(!cbWszyscy->isChecked());
}

CarrierInvoiceList TfrmWydrukiPrzewoz::list() const
{
    CarrierInvoiceList list;
    list.mode = m_mode;
    if (!cbWszyscy->isChecked())
        list.carrier = CBKontrahenci->currentData().toInt();
    list.from = deOd->value().date();
    list.to = deDo->value().date();
    return list;
}

void TfrmWydrukiPrzewoz::btnOkClick()
{
    Connection *database = session().Database;
    if (!database || !complete())
        return;
    TFrmNiezaplaconePrzewoz report(*database, list());
    report.Preview();
    done(mrOk);
}

bool TfrmWydrukiPrzewoz::complete()
{
    const auto refuse = [](const QString &text, QWidget *field) {
        Messages::inform(Caption, text, MessageService::Icon::Warning);
        field->setFocus();
        return false;
    };
    if (!cbWszyscy->isChecked() && CBKontrahenci->currentIndex() < 0)
        return refuse(QStringLiteral("Wybierz przewoźnika albo zaznacz „Wszyscy”."),
                      CBKontrahenci);
    if (m_mode == CarrierInvoiceList::Unpaid)
        return true;
    const std::optional<PeriodProblem> problem = PeriodProblem::of(
        deOd, deDo, QStringLiteral("Data od : nie może być późniejsza niż Data do :."));
    return problem ? refuse(problem->text, problem->field) : true;
}
