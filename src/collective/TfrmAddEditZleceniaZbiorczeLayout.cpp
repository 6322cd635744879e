// The controls of the collective order editor and where they stand.
#include "PickerButton.h"
#include "RequiredDateEdit.h"
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "TfrmAddEditZleceniaZbiorcze.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QToolButton>

namespace {

template <class Widget, class... Args>
Widget *make(const char *name, Args &&...args)
{
    auto *widget = new Widget(std::forward<Args>(args)...);
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

TLimitedSpinEdit *spin(const char *name, int minimum, int maximum, QWidget *parent)
{
    auto *edit = make<TLimitedSpinEdit>(name, parent);
    edit->setRange(minimum, maximum);
    edit->setValue(minimum);
    return edit;
}

TNumberEdit *money(const char *name, QWidget *parent)
{
    return make<TNumberEdit>(name, QStringLiteral("#,##0.00"), 2, 9999999.0, parent);
}

// Shown for the dispatcher's notes; what is typed here is not stored.
QLineEdit *hourField(const char *name, QWidget *parent)
{
    auto *edit = make<QLineEdit>(name, parent);
    edit->setInputMask(QStringLiteral("90:00;_"));
    edit->setMaxLength(5);
    edit->setMaximumWidth(60);
    return edit;
}

// A record chosen in a register, never typed into.
QLineEdit *pickedField(const char *name, int length, QAction *&button, const char *buttonName,
                       QWidget *parent)
{
    auto *edit = make<QLineEdit>(name, parent);
    edit->setMaxLength(length);
    edit->setReadOnly(true);
    button = addPickerButton(edit, QString::fromLatin1(buttonName));
    return edit;
}

void addRow(QGridLayout *grid, int row, int column, const QString &caption, QWidget *field)
{
    auto *label = new QLabel(caption, grid->parentWidget());
    label->setBuddy(field);
    grid->addWidget(label, row, column);
    grid->addWidget(field, row, column + 1);
}

} // namespace

void TfrmAddEditZleceniaZbiorcze::buildControls()
{
    auto *client = new QVBoxLayout(pnlClient);
    client->setContentsMargins(8, 6, 8, 6);
    client->addWidget(buildHead(pnlClient));
    pcWykonawca = make<QTabWidget>("pcWykonawca", pnlClient);
    tsWlasny = buildOwnTab();
    tsObcy = buildOutsideTab();
    pcWykonawca->addTab(tsWlasny, QStringLiteral("Wykonawca własny"));
    pcWykonawca->addTab(tsObcy, QStringLiteral("Wykonawca obcy"));
    client->addWidget(pcWykonawca, 1);
}

QWidget *TfrmAddEditZleceniaZbiorcze::buildHead(QWidget *parent)
{
    auto *head = make<QWidget>("pnlNaglowek", parent);
    auto *grid = new QGridLayout(head);
    grid->setContentsMargins(0, 0, 0, 0);
    deZlecenia = requiredDateEdit(QStringLiteral("deZlecenia"), head);
    seNumerKolejny = spin("seNumerKolejny", 1, 9999999, head);
    deDataZaladunku = make<TDateEdit>("deDataZaladunku", head);
    meGodzinaZaladunku = hourField("meGodzinaZaladunku", head);
    deDataRozladunku = make<TDateEdit>("deDataRozladunku", head);
    meGodzinaRozladunku = hourField("meGodzinaRozladunku", head);
    seNumerJazdy = spin("seNumerJazdy", 0, 99999, head);
    seTekstStaly = spin("seTekstStaly", 1, 999, head);
    seKmLadowne = spin("seKmLadowne", 1, 99999, head);
    seKmPuste = spin("seKmPuste", 1, 99999, head);
    seGodzinyZaladunku = spin("seGodzinyZaladunku", 1, 999, head);
    seGodzinyRozladunku = spin("seGodzinyRozladunku", 1, 999, head);
    memoDodatkowyOpis = make<QPlainTextEdit>("memoDodatkowyOpis", head);
    memoDodatkowyOpis->setFixedHeight(54);
    memoDodatkowyOpis->setTabChangesFocus(true);

    addRow(grid, 0, 0, QStringLiteral("Data zlecenia"), deZlecenia);
    addRow(grid, 0, 2, QStringLiteral("Nr zlecenia"), seNumerKolejny);
    addRow(grid, 1, 0, QStringLiteral("Data załadunku"), deDataZaladunku);
    addRow(grid, 1, 2, QStringLiteral("Godzina załadunku"), meGodzinaZaladunku);
    addRow(grid, 2, 0, QStringLiteral("Data rozładunku"), deDataRozladunku);
    addRow(grid, 2, 2, QStringLiteral("Godzina rozładunku"), meGodzinaRozladunku);
    addRow(grid, 3, 0, QStringLiteral("km ładowne"), seKmLadowne);
    addRow(grid, 3, 2, QStringLiteral("km puste"), seKmPuste);
    addRow(grid, 4, 0, QStringLiteral("ilość godzin załadunku"), seGodzinyZaladunku);
    addRow(grid, 4, 2, QStringLiteral("ilość godzin rozładunku"), seGodzinyRozladunku);
    addRow(grid, 5, 0, QStringLiteral("Numer jazdy"), seNumerJazdy);

    auto *text = new QHBoxLayout;
    text->addWidget(seTekstStaly);
    imgTekstJest = make<QToolButton>("imgTekstJest", head);
    imgTekstJest->setIcon(qApp->style()->standardIcon(QStyle::SP_FileDialogContentsView));
    imgTekstJest->setAutoRaise(true);
    imgTekstJest->setToolTip(QStringLiteral("Wyświetl stały tekst..."));
    imgTekstJest->setFocusPolicy(Qt::NoFocus);
    imgTekstBrak = make<QLabel>("imgTekstBrak", head);
    imgTekstBrak->setPixmap(
        qApp->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(20, 20));
    imgTekstBrak->setToolTip(QStringLiteral("Brak tekstu stałego o tym numerze...."));
    text->addWidget(imgTekstJest);
    text->addWidget(imgTekstBrak);
    auto *lblTekst = new QLabel(QStringLiteral("Numer tekstu stałego:"), head);
    lblTekst->setBuddy(seTekstStaly);
    grid->addWidget(lblTekst, 5, 2);
    grid->addLayout(text, 5, 3);

    auto *lblOpis = new QLabel(QStringLiteral("Dodatkowy opis ładunku"), head);
    lblOpis->setBuddy(memoDodatkowyOpis);
    grid->addWidget(lblOpis, 6, 0);
    grid->addWidget(memoDodatkowyOpis, 6, 1, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    return head;
}

QWidget *TfrmAddEditZleceniaZbiorcze::buildOwnTab()
{
    auto *tab = make<QWidget>("tsWlasny");
    auto *grid = new QGridLayout(tab);
    cePojazd = pickedField("cePojazd", 12, acPojazd, "acPojazd", tab);
    ceKierowca = pickedField("ceKierowca", 45, acKierowca, "acKierowca", tab);
    seStawkaWlasna = money("seStawkaWlasna", tab);
    ceTaryfaWlasna = pickedField("ceTaryfaWlasna", 100, acTaryfaWlasna, "acTaryfaWlasna", tab);
    addRow(grid, 0, 0, QStringLiteral("Nr rej. pojazdu"), cePojazd);
    addRow(grid, 1, 0, QStringLiteral("Kierowca"), ceKierowca);
    addRow(grid, 2, 0, QStringLiteral("Stawka własna"), seStawkaWlasna);
    addRow(grid, 3, 0, QStringLiteral("Stawka taryfowa"), ceTaryfaWlasna);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(4, 1);
    m_own.vehicle = cePojazd;
    m_own.driver = ceKierowca;
    return tab;
}

QWidget *TfrmAddEditZleceniaZbiorcze::buildOutsideTab()
{
    auto *tab = make<QWidget>("tsObcy");
    auto *grid = new QGridLayout(tab);
    cbWykonawca = make<QComboBox>("cbWykonawca", tab);
    btnMore = make<QPushButton>("btnMore", QStringLiteral("Więcej..."), tab);
    cePojazdObcy = pickedField("cePojazdObcy", 12, acPojazdObcy, "acPojazdObcy", tab);
    ceKierowcaObcy = pickedField("ceKierowcaObcy", 45, acKierowcaObcy, "acKierowcaObcy", tab);
    ceTermin = spin("ceTermin", 0, 99, tab);
    ceTermin->setValue(35);
    edFakturaObca = make<QLineEdit>("edFakturaObca", tab);
    edFakturaObca->setMaxLength(50);
    cbVAT = make<QComboBox>("cbVAT", tab);
    deWystawiono = make<TDateEdit>("deWystawiono", tab);
    seKwota = money("seKwota", tab);

    auto *carrier = new QHBoxLayout;
    carrier->addWidget(cbWykonawca, 1);
    carrier->addWidget(btnMore);
    auto *lblWykonawca = new QLabel(QStringLiteral("Wykonawca"), tab);
    lblWykonawca->setBuddy(cbWykonawca);
    grid->addWidget(lblWykonawca, 0, 0);
    grid->addLayout(carrier, 0, 1, 1, 3);
    addRow(grid, 1, 0, QStringLiteral("Nr rej. pojazdu"), cePojazdObcy);
    addRow(grid, 1, 2, QStringLiteral("Kierowca"), ceKierowcaObcy);
    auto *term = new QHBoxLayout;
    term->addWidget(ceTermin);
    term->addWidget(new QLabel(QStringLiteral("dni"), tab));
    term->addStretch(1);
    auto *lblTermin = new QLabel(QStringLiteral("Termin płatności"), tab);
    lblTermin->setBuddy(ceTermin);
    grid->addWidget(lblTermin, 2, 0);
    grid->addLayout(term, 2, 1);
    addRow(grid, 2, 2, QStringLiteral("VAT"), cbVAT);
    addRow(grid, 3, 0, QStringLiteral("Numer faktury od przewoźnika"), edFakturaObca);
    addRow(grid, 3, 2, QStringLiteral("Data wystawienia"), deWystawiono);
    addRow(grid, 4, 2, QStringLiteral("Kwota netto"), seKwota);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(5, 1);
    m_outside.vehicle = cePojazdObcy;
    m_outside.driver = ceKierowcaObcy;
    return tab;
}
