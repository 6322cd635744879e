#include "TfrmFaktPrzew.h"

#include "Format.h"
#include "MessageService.h"
#include "ReportFailures.h"
#include "SessionContext.h"
#include "TBitBtn.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

const QString Caption = QStringLiteral("Faktura przewoźnika");

template <class Field>
Field *named(const char *name, Field *field)
{
    field->setObjectName(QString::fromLatin1(name));
    return field;
}

TNumberEdit *amountField(const char *name, QWidget *parent)
{
    return named(name, new TNumberEdit(QStringLiteral("#,##0.00"), 2, CarrierInvoice::MaxAmount,
                                       parent));
}

} // namespace

TfrmFaktPrzew::TfrmFaktPrzew(QWidget *owner, int orderKey, const CarrierInvoice &invoice)
    : TfrmRODefault(owner), m_orderKey(orderKey)
{
    setObjectName(QStringLiteral("frmFaktPrzew"));
    setWindowTitle(QStringLiteral("Podaj dane faktury przewoźnika"));
    lblHeader->setText(Caption);
    lblHeaderDescription->setText(
        QStringLiteral("Faktura wystawiona przez przewoźnika za wykonanie zlecenia."));
    btnOk->setModalResult(0);

    EdNumerFakt = named("EdNumerFakt", new QLineEdit(pnlClient));
    EdNumerFakt->setMaxLength(CarrierInvoice::MaxNumberLength);
    DEwystawienia = named("DEwystawienia", new TDateEdit(pnlClient));
    DEOtrzymania = named("DEOtrzymania", new TDateEdit(pnlClient));
    RSEDni = named("RSEDni", new TLimitedSpinEdit(pnlClient));
    RSEDni->setRange(0, CarrierInvoice::MaxPaymentDays);
    RSEDni->setMaxLength(3);
    RSEDni->setAlignment(Qt::AlignRight);
    CEKWOTA = amountField("CEKWOTA", pnlClient);
    lblBrutto = named("lblBrutto", new QLabel(QStringLiteral("Brutto:"), pnlClient));
    DEplatnosc = named("DEplatnosc", new TDateEdit(pnlClient));
    CEzaplacono = amountField("CEzaplacono", pnlClient);
    CBZaplacono = named("CBZaplacono", new QCheckBox(QStringLiteral("Zapłacona "), pnlClient));

    auto *layout = new QGridLayout(pnlClient);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->setHorizontalSpacing(10);
    const std::pair<const char *, QWidget *> rows[] = {
        {"Numer Faktury:", EdNumerFakt},          {"Data wystawienia :", DEwystawienia},
        {"Data otrzymania  :", DEOtrzymania},     {"Ilość dni  płatności :", RSEDni},
        {"Kwota netto:", CEKWOTA},                {"Data  zapłaty:", DEplatnosc},
        {"Zapłacono:", CEzaplacono},
    };
    for (const auto &[caption, widget] : rows) {
        const int row = layout->rowCount();
        auto *label = new QLabel(QString::fromUtf8(caption), pnlClient);
        label->setBuddy(widget);
        layout->addWidget(label, row, 0);
        layout->addWidget(widget, row, 1);
        if (widget == CEKWOTA)
            layout->addWidget(lblBrutto, row, 2);
    }
    layout->addWidget(CBZaplacono, layout->rowCount(), 1);
    layout->setColumnMinimumWidth(1, 150);
    layout->setColumnMinimumWidth(2, 110);
    layout->setColumnStretch(2, 1);
    layout->setRowStretch(layout->rowCount(), 1);

    fill(invoice);
    // Connected once the fields hold the order's values, so that filling
    // the issue date does not overwrite the stored payment date.
    connect(DEwystawienia, &TDateEdit::dateChanged, this, &TfrmFaktPrzew::DEwystawieniaChange);
    connect(CEKWOTA, &QAbstractSpinBox::editingFinished, this, &TfrmFaktPrzew::CEKWOTAExit);
    connect(btnOk, &TBitBtn::clicked, this, &TfrmFaktPrzew::btnOkClick);
    resize(460, 400);
}

void TfrmFaktPrzew::FormCreate()
{
    setROFlatControls(true);
    setROCloseOnESC(true);
    TfrmRODefault::FormCreate();
}

void TfrmFaktPrzew::fill(const CarrierInvoice &invoice)
{
    CBZaplacono->setChecked(invoice.paid);
    CEzaplacono->setValue(invoice.paidAmount);
    EdNumerFakt->setText(invoice.number);
    DEwystawienia->setValue(invoice.issued);
    DEOtrzymania->setValue(invoice.received);
    CEKWOTA->setValue(invoice.amount);
    RSEDni->setValue(invoice.paymentDays);
    DEplatnosc->setValue(invoice.paymentDate);
}

CarrierInvoice TfrmFaktPrzew::invoice() const
{
    CarrierInvoice invoice;
    invoice.paid = CBZaplacono->isChecked();
    invoice.number = EdNumerFakt->text();
    invoice.issued = DEwystawienia->value();
    invoice.received = DEOtrzymania->value();
    invoice.amount = CEKWOTA->value();
    invoice.paymentDays = RSEDni->value();
    invoice.paymentDate = DEplatnosc->value();
    invoice.paidAmount = CEzaplacono->value();
    return invoice;
}

void TfrmFaktPrzew::DEwystawieniaChange()
{
    DEplatnosc->setValue(DEwystawienia->value());
}

void TfrmFaktPrzew::CEKWOTAExit()
{
    lblBrutto->setText(Format::number(CarrierInvoice::gross(CEKWOTA->value()), u"###,##0.00"));
}

QWidget *TfrmFaktPrzew::field(CarrierInvoice::Field which) const
{
    switch (which) {
    case CarrierInvoice::Field::Number:
        return EdNumerFakt;
    case CarrierInvoice::Field::Issued:
        return DEwystawienia;
    case CarrierInvoice::Field::Received:
        return DEOtrzymania;
    case CarrierInvoice::Field::PaymentDays:
        return RSEDni;
    case CarrierInvoice::Field::Amount:
        return CEKWOTA;
    case CarrierInvoice::Field::PaymentDate:
        return DEplatnosc;
    case CarrierInvoice::Field::PaidAmount:
        return CEzaplacono;
    }
    return nullptr;
}

bool TfrmFaktPrzew::unreadableField()
{
    // An amount's text is checked as it stands: taking it over would put
    // the number the field can make of it in its place.
    for (TNumberEdit *amount : {CEKWOTA, CEzaplacono}) {
        if (!Format::parseNumber(amount->text())) {
            Messages::inform(Caption,
                             (amount == CEKWOTA ? QStringLiteral("Kwota netto")
                                                : QStringLiteral("Zapłacono"))
                                 + QStringLiteral(": wpisz kwotę, np. 1250,00."),
                             MessageService::Icon::Warning);
            amount->setFocus();
            return true;
        }
    }
    const std::pair<QAbstractSpinBox *, const char *> fields[] = {
        {DEwystawienia, "Data wystawienia: wpisz datę w postaci rrrr-mm-dd."},
        {DEOtrzymania, "Data otrzymania: wpisz datę w postaci rrrr-mm-dd."},
        {RSEDni, "Ilość dni płatności: wpisz liczbę dni od 0 do 999."},
        {CEKWOTA, "Kwota netto: wpisz kwotę, np. 1250,00."},
        {DEplatnosc, "Data zapłaty: wpisz datę w postaci rrrr-mm-dd."},
        {CEzaplacono, "Zapłacono: wpisz kwotę, np. 1250,00."},
    };
    for (const auto &[widget, message] : fields) {
        // What was typed and not yet taken over (Alt+Z does not leave the
        // field) counts as it stands on the screen.
        widget->interpretText();
        if (!widget->hasAcceptableInput()) {
            Messages::inform(Caption, QString::fromUtf8(message), MessageService::Icon::Warning);
            widget->setFocus();
            return true;
        }
    }
    return false;
}

void TfrmFaktPrzew::btnOkClick()
{
    Connection *database = session().Database;
    if (!database || unreadableField())
        return;
    const CarrierInvoice typed = invoice();
    if (const auto problem = typed.problem()) {
        Messages::inform(Caption, problem->message, MessageService::Icon::Warning);
        field(problem->field)->setFocus();
        return;
    }
    bool saved = false;
    if (!reportFailures(QStringLiteral("Nie można zapisać faktury przewoźnika"),
                        [&] { saved = typed.save(*database, m_orderKey); }))
        return;
    if (!saved) {
        Messages::inform(Caption,
                         QStringLiteral("Zlecenia nie ma już w bazie: mogło zostać usunięte na "
                                        "innym stanowisku. Faktury nie zapisano."),
                         MessageService::Icon::Warning);
        done(mrCancel);
        return;
    }
    done(mrOk);
}
