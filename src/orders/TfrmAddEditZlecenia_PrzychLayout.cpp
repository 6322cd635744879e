// The controls of the order editor and where they stand.
#include "TDateEdit.h"
#include "TLimitedSpinEdit.h"
#include "TNumberEdit.h"
#include "PickerButton.h"
#include "TfrmAddEditZlecenia_Przych.h"

#include <QCheckBox>
#include <QComboBox>
#include <QBoxLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>

namespace {

template <class Widget, class... Args>
Widget *named(const char *name, Args &&...args)
{
    auto *widget = new Widget(std::forward<Args>(args)...);
    widget->setObjectName(QString::fromLatin1(name));
    return widget;
}

TLimitedSpinEdit *wholeNumber(const char *name, int maximum, QWidget *parent)
{
    auto *spin = named<TLimitedSpinEdit>(name, parent);
    spin->setRange(0, maximum);
    return spin;
}

TNumberEdit *amount(const char *name, QWidget *parent, double maximum = 9999999.99)
{
    // Tariff rates come with up to four decimals; all of them count.
    return named<TNumberEdit>(name, QStringLiteral("#,##0.00##"), 4, maximum, parent);
}

QLineEdit *text(const char *name, int length, QWidget *parent)
{
    auto *edit = named<QLineEdit>(name, parent);
    edit->setMaxLength(length);
    return edit;
}

TNumberEdit *agreedAmount(const char *name, double maximum, QWidget *parent)
{
    return named<TNumberEdit>(name, QStringLiteral("#,##0.00"), 2, maximum, parent);
}

// A tariff's name, never typed into; its button opens the tariff register.
QLineEdit *tariffField(const char *name, QAction *&button, const char *buttonName,
                       QWidget *parent)
{
    QLineEdit *field = text(name, 45, parent);
    field->setReadOnly(true);
    button = addPickerButton(field, QString::fromLatin1(buttonName));
    return field;
}

QLineEdit *timeField(const char *name, QWidget *parent)
{
    auto *edit = named<QLineEdit>(name, parent);
    edit->setInputMask(QStringLiteral("09:99;_"));
    edit->setMaxLength(5);
    edit->setText(QStringLiteral("00:00"));
    edit->setMaximumWidth(60);
    return edit;
}

QPushButton *cityButton(const char *name, QWidget *parent)
{
    auto *button = named<QPushButton>(name, QStringLiteral("..."), parent);
    button->setFixedWidth(26);
    button->setToolTip(QStringLiteral("Miasta i odległości"));
    return button;
}

QLabel *caption(const QString &text, QWidget *buddy, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setBuddy(buddy);
    return label;
}

QGroupBox *dayAndHour(const char *name, const QString &title, TDateEdit *&day, QLineEdit *&hour,
                      const char *dayName, const char *hourName, QWidget *parent)
{
    auto *group = named<QGroupBox>(name, title, parent);
    day = named<TDateEdit>(dayName, group);
    hour = timeField(hourName, group);
    auto *layout = new QGridLayout(group);
    layout->addWidget(caption(QStringLiteral("Data"), day, group), 0, 0);
    layout->addWidget(day, 0, 1);
    layout->addWidget(caption(QStringLiteral("Godzina"), hour, group), 0, 2);
    layout->addWidget(hour, 0, 3);
    layout->setColumnStretch(1, 1);
    return group;
}

} // namespace

void TfrmAddEditZlecenia_Przych::buildControls()
{
    QWidget *p = pnlClient;
    seNumerKolejny = wholeNumber("seNumerKolejny", 9999999, p);
    seNumerKolejny->setMinimumWidth(90);
    lblNumerKolejny = caption(QStringLiteral("Numer zlecenia"), seNumerKolejny, p);
    edPrzeladunek = text("edPrzeladunek", 25, p);
    lblPrzeladunek = caption(QStringLiteral("Zlecenie obce nr"), edPrzeladunek, p);
    cbKlient = named<QComboBox>("cbKlient", p);
    lblKlient = caption(QStringLiteral("Zleceniodawca"), cbKlient, p);
    btnKlientMore = named<QPushButton>("btnKlientMore", QStringLiteral("Więcej..."), p);
    cbPrzewoznikObcy
        = named<QCheckBox>("cbPrzewoznikObcy", QStringLiteral("Perzewoźnik własny:"), p);
    cbPrzewoznikObcy->setLayoutDirection(Qt::RightToLeft);
    cbPrzewoznik = named<QComboBox>("cbPrzewoznik", p);
    BitBtn1 = named<QPushButton>("BitBtn1", QStringLiteral("Więcej..."), p);

    cbMiastoOd = named<QComboBox>("cbMiastoOd", p);
    lblMiastoOd = caption(QStringLiteral("Z miasta"), cbMiastoOd, p);
    cbMiastoPrzez = named<QComboBox>("cbMiastoPrzez", p);
    lblMiastoPrzez = caption(QStringLiteral("przez"), cbMiastoPrzez, p);
    cbMiastoDo = named<QComboBox>("cbMiastoDo", p);
    lblMiastoDo = caption(QStringLiteral("do miasta"), cbMiastoDo, p);
    for (QComboBox *city : {cbMiastoOd, cbMiastoPrzez, cbMiastoDo}) {
        city->setMaxVisibleItems(24);
        city->setMinimumWidth(130);
    }
    btnMiastoOd = cityButton("btnMiastoOd", p);
    btnMiastoPrzez = cityButton("btnMiastoPrzez", p);
    btnMiastoDo = cityButton("btnMiastoDo", p);

    gbZaladunek = dayAndHour("gbZaladunek", QStringLiteral("Załadunek"), deAwizo, meAwizo,
                             "deAwizo", "meAwizo", p);
    gbRozladunek = dayAndHour("gbRozladunek", QStringLiteral("Rozładunek"), deRozladunek,
                              meRozladunek, "deRozladunek", "meRozladunek", p);

    seOdleglosc = wholeNumber("seOdleglosc", 99999, p);
    lblOdleglosc = caption(QStringLiteral("Odległość"), seOdleglosc, p);
    seKMLadownych = wholeNumber("seKMLadownych", 99999, p);
    lblKMLadownych = caption(QStringLiteral("Kilometry"), seKMLadownych, p);
    edStawkaKMLadowny = amount("edStawkaKMLadowny", p);
    seKMPustych = named<TNumberEdit>("seKMPustych", QStringLiteral("0.000"), 3, 999.999, p);
    lblKMPustych = caption(QStringLiteral("Ilość ton"), seKMPustych, p);
    edStawkaKMPusty = amount("edStawkaKMPusty", p);
    seIloscGodzin = named<TNumberEdit>("seIloscGodzin", QStringLiteral("0.0"), 1, 999.9, p);
    lblIloscGodzin = caption(QStringLiteral("Ilość godzin"), seIloscGodzin, p);
    edStawkaIloscGodzin = amount("edStawkaIloscGodzin", p);
    seIloscPalet = wholeNumber("seIloscPalet", 99999, p);
    lblIloscPalet = caption(QStringLiteral("Ilość palet"), seIloscPalet, p);
    edStawkaIloscPalet = amount("edStawkaIloscPalet", p);

    gbStawka = named<QGroupBox>("gbStawka", QStringLiteral("Stawka"), p);
    rbStawkaUmowna = named<QRadioButton>("rbStawkaUmowna", QStringLiteral("Umowna"), gbStawka);
    seKwota = agreedAmount("seKwota", 99999.0, gbStawka);
    rbStawkaTaryfowa
        = named<QRadioButton>("rbStawkaTaryfowa", QStringLiteral("Wg taryfy"), gbStawka);
    ceTaryfa = tariffField("ceTaryfa", acTaryfa, "acTaryfa", gbStawka);
    ceTaryfa->setToolTip(QStringLiteral("Klawisz Delete usuwa taryfę"));
    btnCennik = named<QPushButton>("btnCennik", QStringLiteral("Wylicz z cennika"), gbStawka);
    pmCennik = named<QMenu>("pmCennik", btnCennik);
    gbKoszty = named<QGroupBox>("gbKoszty", QStringLiteral("Koszty"), p);
    rbKosztUmowna = named<QRadioButton>("rbKosztUmowna", QStringLiteral("Umowna"), gbKoszty);
    seKosztKwota = agreedAmount("seKosztKwota", 999999.0, gbKoszty);
    rgKosztTaryfa = named<QRadioButton>("rgKosztTaryfa", QStringLiteral("Wg taryfy"), gbKoszty);
    ceKosztTaryfa = tariffField("ceKosztTaryfa", acKosztTaryfa, "acKosztTaryfa", gbKoszty);

    ceRabat = named<TNumberEdit>("ceRabat", QStringLiteral(",0.00 %"), 2, 100.0, p);
    lblRabat = caption(QStringLiteral("Rabat:"), ceRabat, p);
    lblStawkaRazem = named<QLabel>("lblStawkaRazem", QStringLiteral("0,00"), p);
    lblStawkaRazem->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblStawkaRazem->setMinimumWidth(100);
    lblStawkaRazem->setStyleSheet(QStringLiteral("font-weight: bold;"));
    lblStawkaRazemOpis = caption(QStringLiteral("Stawka razem:"), nullptr, p);
    ceOplataSkarbowa = amount("ceOplataSkarbowa", p);
    lblOplataSkarbowa = caption(QStringLiteral("Opł.skarbowa"), ceOplataSkarbowa, p);

    edPojazd = text("edPojazd", 15, p);
    lblPojazd = caption(QStringLiteral("Pojazd"), edPojazd, p);
    acPojazd = addPickerButton(edPojazd, QStringLiteral("acPojazd"));
    edNaczepa = text("edNaczepa", 15, p);
    lblNaczepa = caption(QStringLiteral("Naczepa"), edNaczepa, p);
    acNaczepa = addPickerButton(edNaczepa, QStringLiteral("acNaczepa"));
    ceKierowca = text("ceKierowca", 45, p);
    lblKierowca = caption(QStringLiteral("Kierowca"), ceKierowca, p);
    acKierowca = addPickerButton(ceKierowca, QStringLiteral("acKierowca"));

    seDokWZ = wholeNumber("seDokWZ", 99999, p);
    lblDokWZ = caption(QStringLiteral("Numer WZ:"), seDokWZ, p);
    edNrKarty = wholeNumber("edNrKarty", 99999, p);
    lblNrKarty = caption(QStringLiteral("Numer karty:"), edNrKarty, p);
    edNrListu = wholeNumber("edNrListu", 99999, p);
    lblNrListu = caption(QStringLiteral("Numer listu:"), edNrListu, p);
    memOpisDod = named<QPlainTextEdit>("memOpisDod", p);
    memOpisDod->setTabChangesFocus(true);
    memOpisDod->setMaximumHeight(60);
    lblOpisDod = caption(QStringLiteral("Dodatkowy opis:"), memOpisDod, p);
    edTekstStaly = text("edTekstStaly", 9, p);
    edTekstStaly->setEnabled(false);
    lblTekstStaly = caption(QStringLiteral("Stały tekst:"), edTekstStaly, p);

    cbWspolnik = named<QComboBox>("cbWspolnik", p);
    chslubice = named<QCheckBox>("chslubice", QString(), p);
    for (QWidget *hidden : std::initializer_list<QWidget *>{
             ceOplataSkarbowa, lblOplataSkarbowa, cbWspolnik, chslubice})
        hidden->hide();
}

void TfrmAddEditZlecenia_Przych::buildLayout()
{
    auto *stawka = new QGridLayout(gbStawka);
    stawka->addWidget(rbStawkaUmowna, 0, 0);
    stawka->addWidget(seKwota, 0, 1);
    stawka->addWidget(rbStawkaTaryfowa, 1, 0);
    stawka->addWidget(ceTaryfa, 1, 1);
    stawka->addWidget(btnCennik, 2, 1);
    stawka->setColumnStretch(1, 1);
    auto *koszty = new QGridLayout(gbKoszty);
    koszty->addWidget(rbKosztUmowna, 0, 0);
    koszty->addWidget(seKosztKwota, 0, 1);
    koszty->addWidget(rgKosztTaryfa, 1, 0);
    koszty->addWidget(ceKosztTaryfa, 1, 1);
    koszty->setColumnStretch(1, 1);

    auto *grid = new QGridLayout(pnlClient);
    grid->setContentsMargins(12, 10, 12, 10);
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(5);
    int row = 0;
    grid->addWidget(lblNumerKolejny, row, 0);
    grid->addWidget(seNumerKolejny, row, 1);
    grid->addWidget(lblPrzeladunek, row, 2);
    grid->addWidget(edPrzeladunek, row, 3);
    grid->addWidget(lblKlient, ++row, 0);
    grid->addWidget(cbKlient, row, 1, 1, 4);
    grid->addWidget(btnKlientMore, row, 5);
    grid->addWidget(cbPrzewoznikObcy, ++row, 0);
    grid->addWidget(cbPrzewoznik, row, 1, 1, 4);
    grid->addWidget(BitBtn1, row, 5);

    auto *route = new QHBoxLayout;
    for (const auto &[label, city, button] :
         {std::tuple{lblMiastoOd, cbMiastoOd, btnMiastoOd},
          {lblMiastoPrzez, cbMiastoPrzez, btnMiastoPrzez},
          {lblMiastoDo, cbMiastoDo, btnMiastoDo}}) {
        route->addWidget(label);
        route->addWidget(city, 1);
        route->addWidget(button);
    }
    grid->addLayout(route, ++row, 0, 1, 6);
    grid->addWidget(gbZaladunek, ++row, 0, 1, 3);
    grid->addWidget(gbRozladunek, row, 3, 1, 3);

    // Quantities and their rates on the left, the two pricing groups beside.
    auto *quantities = new QGridLayout;
    quantities->addWidget(lblOdleglosc, 0, 0);
    quantities->addWidget(seOdleglosc, 0, 1);
    const struct
    {
        QLabel *label;
        QWidget *quantity;
        QWidget *rate;
    } priced[] = {{lblKMLadownych, seKMLadownych, edStawkaKMLadowny},
                  {lblKMPustych, seKMPustych, edStawkaKMPusty},
                  {lblIloscGodzin, seIloscGodzin, edStawkaIloscGodzin},
                  {lblIloscPalet, seIloscPalet, edStawkaIloscPalet}};
    int line = 0;
    for (const auto &p : priced) {
        quantities->addWidget(p.label, ++line, 0);
        quantities->addWidget(p.quantity, line, 1);
        quantities->addWidget(caption(QStringLiteral("Stawka"), p.rate, pnlClient), line, 2);
        quantities->addWidget(p.rate, line, 3);
    }
    quantities->setColumnStretch(1, 1);
    quantities->setColumnStretch(3, 1);
    auto *pricing = new QVBoxLayout;
    pricing->addWidget(gbStawka);
    pricing->addWidget(gbKoszty);
    pricing->addStretch(1);
    auto *money = new QHBoxLayout;
    money->addLayout(quantities, 3);
    money->addLayout(pricing, 2);
    grid->addLayout(money, ++row, 0, 1, 6);
    grid->addWidget(lblRabat, ++row, 0);
    grid->addWidget(ceRabat, row, 1);
    grid->addWidget(lblStawkaRazemOpis, row, 2);
    grid->addWidget(lblStawkaRazem, row, 3);
    grid->addWidget(lblOplataSkarbowa, row, 4);
    grid->addWidget(ceOplataSkarbowa, row, 5);

    const auto addRow = [&](std::initializer_list<QWidget *> cells) {
        int column = 0;
        ++row;
        for (QWidget *cell : cells)
            grid->addWidget(cell, row, column++);
    };
    addRow({lblPojazd, edPojazd, lblNaczepa, edNaczepa});
    grid->addWidget(lblKierowca, ++row, 0);
    grid->addWidget(ceKierowca, row, 1, 1, 3);
    addRow({lblDokWZ, seDokWZ, lblNrKarty, edNrKarty, lblNrListu, edNrListu});
    grid->addWidget(lblOpisDod, ++row, 0);
    grid->addWidget(memOpisDod, row, 1, 1, 5);
    addRow({lblTekstStaly, edTekstStaly, cbWspolnik, chslubice});
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    grid->setColumnStretch(4, 1);
    grid->setRowStretch(++row, 1);
}
