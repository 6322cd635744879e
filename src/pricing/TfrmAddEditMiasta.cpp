#include "TfrmAddEditMiasta.h"

#include "ReportFailures.h"
#include "Routes.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TLimitedSpinEdit.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

TfrmAddEditMiasta::TfrmAddEditMiasta(QWidget *owner, int routeKey)
    : TfrmRODefault(owner), m_routeKey(routeKey)
{
    setObjectName(QStringLiteral("frmAddEditMiasta"));
    setWindowTitle(QStringLiteral("Podaj dane o odległości"));
    lblHeader->setText(QStringLiteral("Edycja danych"));
    lblHeaderDescription->setText(QStringLiteral("Edycja tabeli odległości"));
    setROCloseOnESC(true);
    btnOk->setModalResult(0);

    const auto readOnly = [this](const QString &name) {
        auto *edit = new QLineEdit(pnlClient);
        edit->setObjectName(name);
        edit->setReadOnly(true);
        edit->setMaxLength(255);
        return edit;
    };
    edMiastoOd = readOnly(QStringLiteral("edMiastoOd"));
    edMiastoDo = readOnly(QStringLiteral("edMiastoDo"));
    edOdleglosc = new TLimitedSpinEdit(pnlClient);
    edOdleglosc->setObjectName(QStringLiteral("edOdleglosc"));
    edOdleglosc->setRange(0, 99999);
    edOdleglosc->setMaxLength(9);
    edOdleglosc->setGroupSeparatorShown(true);
    edOdleglosc->setSuffix(QStringLiteral(" km"));
    edOdleglosc->setAlignment(Qt::AlignRight);

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    const std::pair<const char *, QWidget *> rows[] = {
        {"Miejscowość początkowa", edMiastoOd},
        {"Miejscowość końcowa", edMiastoDo},
        {"Odległość:", edOdleglosc},
    };
    for (const auto &[caption, field] : rows) {
        const int row = layout->rowCount();
        auto *label = new QLabel(QString::fromUtf8(caption), pnlClient);
        label->setBuddy(field);
        layout->addWidget(label, row, 0);
        layout->addWidget(field, row, 1);
    }
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(layout->rowCount(), 1);

    connect(btnOk, &TBitBtn::clicked, this, &TfrmAddEditMiasta::btnOkClick);
    resize(420, 260);
}

void TfrmAddEditMiasta::FormShow()
{
    TfrmRODefault::FormShow();
    Connection *database = session().Database;
    if (m_loaded || !database)
        return;
    m_loaded = true;
    reportFailures(QStringLiteral("Nie można odczytać odległości"), [&] {
        const RouteRow route = Routes::load(*database, m_routeKey);
        edMiastoOd->setText(route.fromName);
        edMiastoDo->setText(route.toName);
        edOdleglosc->setValue(route.kilometres);
    });
}

void TfrmAddEditMiasta::btnOkClick()
{
    Connection *database = session().Database;
    if (!database)
        return;
    if (reportFailures(QStringLiteral("Nie można zapisać odległości"),
                    [&] { Routes::setDistance(*database, m_routeKey, edOdleglosc->value()); }))
        done(mrOk);
}
