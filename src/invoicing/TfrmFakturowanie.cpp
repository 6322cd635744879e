#include "TfrmFakturowanie.h"

#include "MessageService.h"
#include "ReportFailures.h"
#include "RequiredDateEdit.h"
#include "RevenueAccounts.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TFakturyObj.h"
#include "TLimitedSpinEdit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int MaxWidth = 506;

template <class Field>
Field *named(const char *name, Field *field)
{
    field->setObjectName(QString::fromLatin1(name));
    return field;
}

QLineEdit *lineEdit(const char *name, int length, QWidget *parent)
{
    auto *edit = named(name, new QLineEdit(parent));
    edit->setMaxLength(length);
    return edit;
}

void fillCombo(QComboBox *combo, const std::vector<InvoiceHeaderChoices::Item> &items, int key)
{
    for (const InvoiceHeaderChoices::Item &item : items)
        combo->addItem(item.text, item.key);
    combo->setCurrentIndex(combo->findData(key));
}

int keyOf(const QComboBox *combo)
{
    return combo->currentIndex() < 0 ? 0 : combo->currentData().toInt();
}

} // namespace

TfrmFakturowanie::TfrmFakturowanie(QWidget *owner, TFakturyObj &record)
    : TfrmRODefault(owner), m_record(record)
{
    setObjectName(QStringLiteral("frmFakturowanie"));
    setWindowTitle(QStringLiteral("Fakturowanie"));
    lblHeader->setText(QStringLiteral("Fakturowanie usługi spedycyjnej"));
    lblHeaderDescription->setText(QStringLiteral("Wystawianie faktur dla zleceń spedycyjnych"));
    btnOk->setModalResult(0);
    setMaximumWidth(MaxWidth);

    // The fields scroll on a low screen; the header and buttons stay.
    auto *scroll = new QScrollArea(pnlClient);
    scroll->setObjectName(QStringLiteral("sbFakturowanie"));
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    auto *fields = new QWidget(scroll);
    fields->setObjectName(QStringLiteral("pnlPola"));
    buildFields(fields);
    scroll->setWidget(fields);
    auto *client = new QVBoxLayout(pnlClient);
    client->setContentsMargins(0, 0, 0, 0);
    client->addWidget(scroll);

    connect(memUwagi, &QPlainTextEdit::textChanged, this, &TfrmFakturowanie::memUwagiChange);
    connect(btnOk, &TBitBtn::clicked, this, &TfrmFakturowanie::btnOkClick);
    resize(MaxWidth, 600);
}

void TfrmFakturowanie::buildFields(QWidget *parent)
{
    cbDokument = named("cbDokument", new QComboBox(parent));
    edSymbolFaktury = lineEdit("edSymbolFaktury", InvoiceHeader::SymbolLength, parent);
    cbKontrahenci = named("cbKontrahenci", new QComboBox(parent));
    deDataWystawienia = requiredDateEdit(QStringLiteral("deDataWystawienia"), parent);
    deDataSprzedazy = requiredDateEdit(QStringLiteral("deDataSprzedazy"), parent);
    cbSposobZaplaty = named("cbSposobZaplaty", new QComboBox(parent));
    seIloscDni = named("seIloscDni", new TLimitedSpinEdit(parent));
    seIloscDni->setRange(0, InvoiceHeader::MaxPaymentDays);
    seIloscDni->setMaxLength(3);
    seIloscDni->setAlignment(Qt::AlignRight);
    cbKonto = named("cbKonto", new QComboBox(parent));
    edOdebral = lineEdit("edOdebral", InvoiceHeader::ReceiverLength, parent);
    edOpisPozycji = lineEdit("edOpisPozycji", InvoiceHeader::ServiceNameLength, parent);
    memUwagi = named("memUwagi", new QPlainTextEdit(parent));
    memUwagi->setTabChangesFocus(true);
    memUwagi->setFixedHeight(60);
    CBKsiegowe = named("CBKsiegowe", new QComboBox(parent));
    for (const RevenueAccounts::Account &account : RevenueAccounts::all())
        CBKsiegowe->addItem(account.text());
    EdPkwiu = lineEdit("EdPkwiu", InvoiceHeader::PkwiuLength, parent);

    auto *layout = new QGridLayout(parent);
    layout->setContentsMargins(12, 10, 12, 10);
    layout->setHorizontalSpacing(10);
    const std::pair<const char *, QWidget *> rows[] = {
        {"Rodzaj dokumentu", cbDokument},
        {"Dodatkowy symbol numeru faktury", edSymbolFaktury},
        {"Faktura dla", cbKontrahenci},
        {"Data wystawienia", deDataWystawienia},
        {"Data sprzedaży", deDataSprzedazy},
        {"Sposób zapłaty", cbSposobZaplaty},
        {"Płatność dni", seIloscDni},
        {"Bank", cbKonto},
        {"Odebrał", edOdebral},
        {"Nazwa usługi:", edOpisPozycji},
        {"Uwagi:", memUwagi},
        {"Konto Księgowe", CBKsiegowe},
        {"PKWiU:", EdPkwiu},
    };
    for (const auto &[caption, widget] : rows) {
        const int row = layout->rowCount();
        auto *label = new QLabel(QString::fromUtf8(caption), parent);
        label->setBuddy(widget);
        layout->addWidget(label, row, 0, Qt::AlignTop);
        const Qt::Alignment narrow = widget == seIloscDni ? Qt::AlignLeft : Qt::Alignment();
        layout->addWidget(widget, row, 1, narrow);
    }
    // Long client names and accounts must not widen the dialog.
    for (QComboBox *combo : {cbDokument, cbKontrahenci, cbSposobZaplaty, cbKonto, CBKsiegowe}) {
        combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        combo->setMinimumContentsLength(20);
    }
    layout->setColumnStretch(1, 1);
    seIloscDni->setFixedWidth(70);
    layout->setRowStretch(layout->rowCount(), 1);
}

void TfrmFakturowanie::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
    Connection *database = session().Database;
    if (!database)
        return;
    InvoiceHeaderChoices choices;
    QString pkwiu;
    reportFailures(QStringLiteral("Nie można odczytać danych do faktury"), [&] {
        choices = InvoiceHeaderChoices::load(*database);
        pkwiu = InvoiceHeader::storedPkwiu(*database);
    });
    fill(choices, InvoiceHeader::proposed(choices, m_record, session().OwnFleet,
                                          DateTime::today(), pkwiu));
}

void TfrmFakturowanie::fill(const InvoiceHeaderChoices &choices, const InvoiceHeader &proposed)
{
    fillCombo(cbDokument, choices.documentKinds, proposed.documentKind);
    edSymbolFaktury->setText(proposed.symbol);
    fillCombo(cbKontrahenci, choices.clients, proposed.client);
    deDataWystawienia->setValue(proposed.issued);
    deDataSprzedazy->setValue(proposed.sold);
    fillCombo(cbSposobZaplaty, choices.paymentTypes, proposed.paymentType);
    seIloscDni->setValue(proposed.paymentDays);
    fillCombo(cbKonto, choices.bankAccounts, proposed.bankAccount);
    edOpisPozycji->setText(proposed.serviceName);
    CBKsiegowe->setCurrentIndex(proposed.revenueAccount);
    EdPkwiu->setText(proposed.pkwiu);
}

InvoiceHeader TfrmFakturowanie::header() const
{
    InvoiceHeader header;
    header.documentKind = keyOf(cbDokument);
    header.symbol = edSymbolFaktury->text();
    header.client = keyOf(cbKontrahenci);
    header.issued = deDataWystawienia->value();
    header.sold = deDataSprzedazy->value();
    header.paymentType = keyOf(cbSposobZaplaty);
    header.paymentDays = seIloscDni->value();
    header.bankAccount = keyOf(cbKonto);
    header.receiver = edOdebral->text();
    header.serviceName = edOpisPozycji->text();
    header.remarks = remarks();
    header.revenueAccount = CBKsiegowe->currentIndex();
    header.pkwiu = EdPkwiu->text();
    return header;
}

QString TfrmFakturowanie::remarks() const
{
    return memUwagi->toPlainText().left(InvoiceHeader::RemarksLength);
}

void TfrmFakturowanie::memUwagiChange()
{
    const QString text = memUwagi->toPlainText();
    if (text.size() <= InvoiceHeader::RemarksLength)
        return;
    const QSignalBlocker blocker(memUwagi);
    memUwagi->setPlainText(text.left(InvoiceHeader::RemarksLength));
    memUwagi->moveCursor(QTextCursor::End);
}

void TfrmFakturowanie::btnOkClick()
{
    const InvoiceHeader typed = header();
    // The code is kept for the next invoice even when a choice below is
    // still missing.
    if (Connection *database = session().Database) {
        reportFailures(QStringLiteral("Nie zapisano kodu PKWiU"),
                       [&] { InvoiceHeader::storePkwiu(*database, typed.pkwiu); });
    }
    if (const QString problem = typed.problem(); !problem.isEmpty()) {
        MessageServices::instance().showMessage(problem);
        return;
    }
    typed.applyTo(m_record);
    done(mrOk);
}
